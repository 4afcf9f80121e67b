#include "BuildInfo.h"
#include "app/CommandLine.h"
#include "app/RemoteCommands.h"
#include "app/TrayApplication.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QApplication>
#include <QCoreApplication>
#include <QTextStream>
#include <memory>

// Dispatch only: each subcommand is a function of its arguments and streams. Commands that
// show something on screen get a QApplication; the rest run without a display.

namespace {

using CommandFunction = int (*)(const QStringList &args, CommandContext &context);

struct Command {
    const char *name;
    CommandFunction run;
};

const Command commands[] = {
    {"format", runFormatCommand},
    {"toggle", runToggleCommand},
    {"export", runExportCommand},
    {"pick", runPickCommand},
};

bool needsDisplay(const QStringList &args)
{
    if (args.isEmpty())
        return true; // the tray program
    return args.first() == u"pick" && args.contains(QStringLiteral("--print"));
}

int runSubcommand(const QString &name, const QStringList &args)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    SettingsStore store(SettingsStore::standardFilePath());
    SettingsViewModel::registerDefaults(store);
    CommandContext context{out, err, store};
    for (const Command &command : commands)
        if (name == QLatin1String(command.name))
            return command.run(args, context);
    err << "vantle: the command \"" << name << "\" is not available in this build\n";
    return ExitStatus::usage;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);

    std::unique_ptr<QCoreApplication> app;
    if (needsDisplay(args))
        app = std::make_unique<QApplication>(argc, argv);
    else
        app = std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(BuildInfo::version));

    QTextStream out(stdout);
    if (!args.isEmpty() && isSubcommand(args.first()))
        return runSubcommand(args.first(), args.mid(1));
    if (!args.isEmpty() && (args.first() == u"--version" || args.first() == u"-v")) {
        out << "vantle " << BuildInfo::version << Qt::endl;
        return ExitStatus::ok;
    }
    if (!args.isEmpty() && args.first() != u"--help" && args.first() != u"-h") {
        QTextStream(stderr) << "vantle: unknown command \"" << args.first() << "\"\n\n" << commandLineHelp();
        return ExitStatus::usage;
    }
    if (args.isEmpty())
        return runTrayApplication();
    out << commandLineHelp();
    return ExitStatus::ok;
}
