// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/DesktopPart.h"
#include "app/TrayApplication.h"
#include "screens/AccessibleWidgets.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QApplication>
#include <QTextStream>

extern "C" Q_DECL_EXPORT int vantleDesktopMain(int argc, char **argv)
{
    // The words as given, before QApplication takes its own options (-platform and the like).
    QStringList args;
    for (int i = 2; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const bool tray = argc < 2;

    // Named after our desktop entry: the desktop shows its icon and name for our windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("vantle"));
    QApplication app(argc, argv);
    setApplicationIdentity();
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
