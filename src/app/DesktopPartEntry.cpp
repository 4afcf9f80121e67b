// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/DesktopPart.h"
#include "app/Translations.h"
#include "app/TrayApplication.h"
#include "platform/DesktopSession.h"
#include "platform/wayland/LoadedWayland.h"
#include "screens/AccessibleWidgets.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QTextStream>

namespace {

Q_LOGGING_CATEGORY(lcBackends, "vantle.backends", QtWarningMsg)

// Where the compositor offers no data-control (GNOME), Qt runs on XWayland, whose clipboard
// needs no focus; the platform is chosen for this process only, not for programs it starts.
QByteArray choosePlatform(int argc, char **argv)
{
    StartEnvironment environment;
    environment.isPlatformChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    for (int i = 1; i < argc; ++i)
        environment.isPlatformChosen |= qstrcmp(argv[i], "-platform") == 0;
    environment.hasWaylandDisplay = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    environment.hasX11Display = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (environment.needsDataControlProbe())
        environment.offersDataControl = LoadedWayland::compositorOffersDataControl();
    const QByteArray platform = qtPlatformFor(environment);
    if (!platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", platform);
    return platform;
}

} // namespace

extern "C" Q_DECL_EXPORT int vantleDesktopMain(int argc, char **argv)
{
    // The words as given, before QApplication takes its own options (-platform and the like).
    QStringList args;
    for (int i = 2; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const bool tray = argc < 2;

    // Named after our desktop entry: the desktop shows its icon and name for our windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("vantle"));
    const QByteArray platform = choosePlatform(argc, argv);
    QApplication app(argc, argv);
    if (!platform.isEmpty()) {
        qunsetenv("QT_QPA_PLATFORM");
        qCInfo(lcBackends) << "platform:" << platform
                           << "through XWayland: the compositor offers no data-control";
    }
    setApplicationIdentity();
    installTranslations();
    installAccessibleWidgets();
    if (tray)
        return runTrayApplication();

    QTextStream out(stdout);
    QTextStream err(stderr);
    SettingsStore store(SettingsStore::standardFilePath());
    SettingsViewModel::registerDefaults(store);
    CommandContext context { out, err, store };
    return runPickPrintCommand(args, context);
}
