// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TrayApplication.h"

#include "app/AppDelegate.h"
#include "app/InstanceClient.h"
#include "app/InstanceServer.h"
#include "history/CopyHud.h"
#include "history/FileExportDialogs.h"
#include "platform/PlatformBackends.h"
#include "platform/WindowCompositing.h"
#include "platform/network/LoadedUpdateNetwork.h"
#include "platform/portal/AppearanceMonitor.h"
#include "platform/wayland/LoadedWayland.h"
#include "screens/DialogUpdateInterface.h"
#include "services/SettingsStore.h"
#include "services/XdgAutostartService.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>
#include <QTextStream>
#include <QThreadPool>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

Q_LOGGING_CATEGORY(lcWindows, "vantle.windows")

// How the desktop is told about the capsule and the popup: on X11 they are placed as asked and
// need no telling; on Wayland only KWin's plasma shell can be told, and elsewhere the capsule
// shows no window.
std::unique_ptr<WindowRoles> makeWindowRoles(const DesktopSession &session)
{
    if (!session.isWayland())
        return nullptr;
    if (std::unique_ptr<WindowRoles> plasmaShell = LoadedWayland::connectPlasmaShell()) {
        qCInfo(lcWindows) << "capsule and popup through org_kde_plasma_shell: an on-screen display that "
                             "never takes the keyboard, the popup under the pointer";
        return plasmaShell;
    }
    qCInfo(lcWindows) << "the compositor offers no org_kde_plasma_shell: no copy capsule (it would take the "
                         "keyboard), the popup where the compositor puts it";
    return std::make_unique<NullWindowRoles>();
}

int quitSignalPipe[2] = { -1, -1 };

void writeQuitSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(quitSignalPipe[0], &byte, 1);
}

// A logout or a Ctrl+C in the terminal ends Vantle as its Quit button would, so the shortcuts
// are released the normal way. The signal handler only writes a byte; the quit itself runs
// on the main thread when the event loop reads it.
void quitOnTerminationSignals(QObject *context)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, quitSignalPipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(quitSignalPipe[1], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [] {
        char byte;
        [[maybe_unused]] const ssize_t read = ::read(quitSignalPipe[1], &byte, 1);
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = writeQuitSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);
}

} // namespace

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
    const DesktopSession session = DesktopSession::current();
    SettingsStore store(SettingsStore::standardFilePath());
    std::unique_ptr<ScreenColorSampler> sampler = makeScreenColorSampler(session);
    std::unique_ptr<Clipboard> clipboard = makeClipboard(session);
    const std::unique_ptr<WindowRoles> windowRoles = makeWindowRoles(session);
    CopyHud confirmation(desktopShowsTranslucentWindows, session.isX11(), windowRoles.get());
    FileExportDialogs exportDialogs;
    std::unique_ptr<GlobalShortcutBackend> shortcuts = makeGlobalShortcutBackend(session);
    XdgAutostartService loginItems(
        XdgAutostartService::standardEntryPath(), XdgAutostartService::runningProgramPath());
    AppearanceMonitor appearance;
    LoadedUpdateNetwork network;
    DialogUpdateInterface updateInterface;

    AppDelegate delegate({ store, *sampler, *clipboard, confirmation, exportDialogs, *shortcuts, loginItems,
        appearance, network, updateInterface, session.isWayland(), windowRoles.get(), session.isGnome() });
    QObject::connect(instance.get(), &InstanceServer::pickRequested, &delegate, &AppDelegate::pickColor,
        Qt::QueuedConnection);
    QObject::connect(instance.get(), &InstanceServer::togglePopoverRequested, &delegate,
        &AppDelegate::togglePopover, Qt::QueuedConnection);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);
    quitOnTerminationSignals(&delegate);

    // The launch runs to its end before the first event is handled, as a desktop application's
    // does; the tray icon shows within it, not a turn of the event loop later.
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
