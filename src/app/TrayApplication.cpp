#include "app/TrayApplication.h"

#include "app/AppDelegate.h"
#include "app/InstanceServer.h"
#include "history/CopyHud.h"
#include "history/FileExportDialogs.h"
#include "hotkeys/GlobalShortcutBackend.h"
#include "platform/AppearanceMonitor.h"
#include "platform/GlobalShortcutBackendChooser.h"
#include "platform/QtClipboard.h"
#include "platform/ScreenSamplerFactory.h"
#include "services/SettingsStore.h"
#include "services/XdgAutostartService.h"

#include <QApplication>
#include <QTextStream>
#include <QThreadPool>
#include <QTimer>

int runTrayApplication()
{
    std::unique_ptr<InstanceServer> instance = InstanceServer::claim();
    if (!instance) {
        // Vantle already runs in this session: a second start brings its popup up.
        QString error;
        if (sendInstanceRequest(QStringLiteral("TogglePopover"), &error))
            return 0;
        QTextStream(stderr) << "vantle: " << error << Qt::endl;
        return 1;
    }

    // Vantle lives in the tray: closing its last window (the welcome, the settings, the popup
    // shown as a window) never ends it.
    QApplication::setQuitOnLastWindowClosed(false);
    // Qt paints and converts large images (the loupe's freeze-frame, the popup) on the global
    // thread pool, whose threads otherwise end 30 s after their last job: a wake-up in the tray
    // long after the user is done. Idle threads that stay asleep cost nothing.
    QThreadPool::globalInstance()->setExpiryTimeout(-1);

    // The facilities, each chosen once for this session, then the delegate that uses them.
    SettingsStore store(SettingsStore::standardFilePath());
    std::unique_ptr<ScreenColorSampler> sampler = makeScreenColorSampler(store);
    QtClipboard clipboard;
    CopyHud confirmation;
    FileExportDialogs exportDialogs;
    std::unique_ptr<GlobalShortcutBackend> shortcuts = createGlobalShortcutBackend();
    XdgAutostartService loginItems(XdgAutostartService::standardEntryPath(),
                                   XdgAutostartService::runningProgramPath());
    AppearanceMonitor appearance;

    AppDelegate delegate({store, *sampler, clipboard, confirmation, exportDialogs, *shortcuts, loginItems,
                          appearance});
    QObject::connect(instance.get(), &InstanceServer::pickRequested, &delegate, &AppDelegate::pickColor,
                     Qt::QueuedConnection);
    QObject::connect(instance.get(), &InstanceServer::togglePopoverRequested, &delegate,
                     &AppDelegate::togglePopover, Qt::QueuedConnection);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);

    // Launching finishes once the event loop runs, as a desktop application's would.
    QTimer::singleShot(0, &delegate, &AppDelegate::applicationDidFinishLaunching);
    return QApplication::exec();
}
