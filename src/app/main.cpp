#include "BuildInfo.h"
#include "app/CommandLine.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

namespace {

int runSubcommand(const QString &name, const QStringList &args)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    SettingsStore store(SettingsStore::standardFilePath());
    SettingsViewModel::registerDefaults(store);
    CommandContext context{out, err, store};
    if (name == u"format")
        return runFormatCommand(args, context);
    err << "vantle: the command \"" << name << "\" is not available in this build\n";
    return ExitStatus::usage;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(BuildInfo::version));

    const QStringList args = QCoreApplication::arguments().mid(1);
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
    out << commandLineHelp();
    return ExitStatus::ok;
}
