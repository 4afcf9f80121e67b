// SPDX-License-Identifier: GPL-3.0-or-later
#include "BuildInfo.h"
#include "app/CommandLine.h"
#include "app/DesktopPart.h"
#include "app/RemoteCommands.h"
#include "app/Translations.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>
#include <dlfcn.h>

// Dispatch only: each subcommand is a function of its arguments and streams. Commands that
// show something on screen run in the desktop part, loaded when needed; the rest run on Qt
// Core without a display.

namespace {

using CommandFunction = int (*)(const QStringList &args, CommandContext &context);

struct Command {
    const char *name;
    CommandFunction run;
};

const Command commands[] = {
    { "format", runFormatCommand }, { "contrast", runContrastCommand }, { "toggle", runToggleCommand },
    { "export", runExportCommand }, { "pick", runPickRequest }, // `pick --print` runs in the desktop part
};

int runSubcommand(const QString &name, const QStringList &args)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    SettingsStore store(SettingsStore::standardFilePath());
    SettingsViewModel::registerDefaults(store);
    CommandContext context { out, err, store };
    for (const Command &command : commands)
        if (name == QLatin1String(command.name))
            return command.run(args, context);
    err << "vantle: " << CommandLine::tr("the command \"%1\" is not available in this build").arg(name)
        << '\n';
    return ExitStatus::usage;
}

// The module lives at a fixed place relative to this program, in the build tree as installed.
int runDesktopPart(int argc, char **argv)
{
    char self[4096];
    const ssize_t length = ::readlink("/proc/self/exe", self, sizeof self - 1);
    const QByteArray programDir = length > 0
        ? QFileInfo(QString::fromLocal8Bit(self, length)).absolutePath().toLocal8Bit()
        : QByteArray(".");
    const QByteArray path = programDir + '/' + BuildInfo::desktopPartPath;
    // Its thousand calls into Qt are bound at their first use rather than all here, a millisecond
    // off the start; what its data refers to (vtables, type information) is still bound here, so
    // a module that does not match the installed Qt fails below, with a message.
    void *module = ::dlopen(path.constData(), RTLD_LAZY | RTLD_LOCAL);
    auto entry = module ? reinterpret_cast<DesktopPart::EntryPoint>(::dlsym(module, DesktopPart::entryPoint))
                        : nullptr;
    if (!entry) {
        QTextStream(stderr) << "vantle: "
                            << CommandLine::tr(
                                   "the desktop part of Vantle cannot be loaded (%1). Reinstalling "
                                   "Vantle puts it back.")
                                   .arg(QString::fromLocal8Bit(::dlerror()))
                            << '\n';
        return ExitStatus::failure;
    }
    return entry(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    if (DesktopPart::isNeededFor(argc, argv))
        return runDesktopPart(argc, argv);

    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    QCoreApplication app(argc, argv);
    setApplicationIdentity();
    installTranslations();

    QTextStream out(stdout);
    if (isSubcommand(args.first()))
        return runSubcommand(args.first(), args.mid(1));
    if (args.first() == u"--version" || args.first() == u"-v") {
        out << "vantle " << BuildInfo::version << Qt::endl;
        return ExitStatus::ok;
    }
    if (args.first() != u"--help" && args.first() != u"-h") {
        QTextStream(stderr) << "vantle: " << CommandLine::tr("unknown command \"%1\"").arg(args.first())
                            << "\n\n"
                            << commandLineHelp();
        return ExitStatus::usage;
    }
    out << commandLineHelp();
    return ExitStatus::ok;
}
