// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppDelegate.h"

#include "app/PopupWindow.h"
#include "app/StatusIcon.h"
#include "app/TrayHost.h"
#include "history/ColorListViewModel.h"
#include "hotkeys/HotkeyManager.h"
#include "platform/WindowCompositing.h"
#include "platform/portal/AppearanceMonitor.h"
#include "screens/ColorListView.h"
#include "screens/OnboardingWindow.h"
#include "screens/SettingsWindow.h"
#include "screens/Theme.h"
#include "services/DiskImageCleanup.h"
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/ProcessCommandRunner.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"

#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QSystemTrayIcon>

using namespace PreferenceKeys;

AppDelegate::AppDelegate(Facilities facilities, QObject *parent)
    : QObject(parent)
    , m_facilities(facilities)
    , m_updaterController(std::make_unique<UpdaterController>(
          facilities.store, facilities.network, facilities.updateInterface))
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    SettingsStore &store = m_facilities.store;

    // 1. Defaults first: everything after reads them.
    SettingsViewModel::registerDefaults(store);

    // 2. The models. The history loads in its construction.
    m_viewModel = std::make_unique<ColorListViewModel>(store, m_facilities.sampler, m_facilities.clipboard,
        m_facilities.confirmation, m_facilities.exportDialogs);
    m_viewModel->onColorPicked = [self = QPointer<AppDelegate>(this)](const PickedColor &) {
        if (self)
            self->updateStatusItemIcon();
    };
    // Whatever starts a pick (the shortcut, the popup's button, `vantle pick`), the popup gets
    // out of the loupe's way first: its window is gone before the loupe reads the screen.
    connect(m_viewModel.get(), &ColorListViewModel::isPickingChanged, this, [this] {
        if (m_viewModel->isPicking() && m_popover && m_popover->isVisible() && !isStandalone())
            m_popover->close();
    });
    m_hotkeyManager = std::make_unique<HotkeyManager>(store, m_facilities.shortcuts);

    // 3. The tray icon, once a tray host exists (Vantle may start at login before the panel).
    m_trayHost = new TrayHost(this);
    connect(m_trayHost, &TrayHost::available, this, &AppDelegate::createStatusItem);
    connect(m_trayHost, &TrayHost::unavailable, this, &AppDelegate::useStandaloneWindow);
    m_trayHost->waitForHost(trayHostWaitMs);

    // 4. The popup and its content.
    m_popover = std::make_unique<PopupWindow>(m_facilities.isWayland, m_facilities.windowRoles);
    refreshPopoverContent();

    // 5. Shortcuts: each reaction runs just after its signal, on the main thread.
    m_hotkeyManager->installEventHandler();
    m_hotkeyManager->reregisterAll();
    connect(m_hotkeyManager.get(), &HotkeyManager::pickHotkeyFired, this, &AppDelegate::pickColor,
        Qt::QueuedConnection);
    // Opened from the keyboard, the popup shows its focus on "Pick Color" at once.
    connect(
        m_hotkeyManager.get(), &HotkeyManager::popoverHotkeyFired, this,
        [this] { togglePopoverWith(Qt::ShortcutFocusReason); }, Qt::QueuedConnection);

    // 6. Launch at login follows the preference.
    LaunchAtLogin::syncLaunchAtLogin(store, m_facilities.loginItems);

    // 7. Default shortcuts where none was ever set.
    applyDefaultShortcuts();

    // The tray icon comes on screen here, once every shortcut is registered: a person takes the
    // icon for "ready" and may press the shortcut at once. What follows needs no icon.
    m_shortcutsRegistered = true;
    if (m_statusItem)
        showStatusItem();

    // 8, 9. Redraw the tray icon after any settings change (the history is one) and after a
    // change of the desktop's light or dark appearance.
    connect(&store, &SettingsStore::changed, this, &AppDelegate::updateStatusItemIcon, Qt::QueuedConnection);
    connect(&m_facilities.appearance, &AppearanceMonitor::appearanceChanged, this,
        &AppDelegate::updateStatusItemIcon, Qt::QueuedConnection);
    // Every window takes the desktop's light or dark wish, also while it is open.
    const auto followColorScheme
        = [this] { Theme::followColorScheme(m_facilities.appearance.requestedDark()); };
    followColorScheme();
    connect(&m_facilities.appearance, &AppearanceMonitor::appearanceChanged, this, followColorScheme);
    // The screens follow the desktop's wish for higher contrast, also when it changes while
    // they are open.
    Theme::setHighContrast(m_facilities.appearance.prefersHighContrast());
    connect(&m_facilities.appearance, &AppearanceMonitor::contrastChanged, this, [this] {
        Theme::setHighContrast(m_facilities.appearance.prefersHighContrast());
        for (QWidget *widget : QApplication::allWidgets())
            widget->update();
    });

    // 10. The welcome window on a first run.
    if (!store.boolForKey(onboardingShown)) {
        m_onboardingWindow = std::make_unique<OnboardingWindow>(
            store, [this] { completeOnboarding(); }, !desktopShowsTranslucentWindows());
        m_onboardingWindow->present();
    }

    // 11. Eject and trash the installation image, if Vantle was just installed from one.
    DiskImageCleanup(DiskImageCleanup::currentEnvironment(), std::make_shared<ProcessCommandRunner>())
        .start();

    // The quiet update checks begin once Vantle runs.
    m_updaterController->startUpdater();
}

void AppDelegate::applicationWillTerminate()
{
    if (m_hotkeyManager)
        m_hotkeyManager->unregisterAll();
}

void AppDelegate::applyDefaultShortcuts()
{
    for (const ShortcutPreference &shortcut : { Preferences::pickShortcut, Preferences::popoverShortcut }) {
        if (shortcut.read(m_facilities.store).keyCode == -1)
            shortcut.write(m_facilities.store, shortcut.seed);
    }
    m_hotkeyManager->reregisterAll();
}

void AppDelegate::createStatusItem()
{
    if (m_statusItem)
        return;
    m_statusItem = std::make_unique<QSystemTrayIcon>();
    m_statusItem->setIcon(QIcon(QPixmap::fromImage(StatusIcon::plainIcon(isPanelDark(), 2.0))));
    m_statusItem->setToolTip(QStringLiteral("Vantle"));
    connect(m_statusItem.get(), &QSystemTrayIcon::activated, this,
        [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                togglePopoverWith(Qt::MouseFocusReason);
        });
    // During the launch the icon waits for the shortcuts; a tray that comes later shows it now.
    if (m_shortcutsRegistered)
        showStatusItem();
}

void AppDelegate::showStatusItem()
{
    m_statusItem->show();
    TrayHost::sendPendingRequests();
    // Desktops that show only a menu for a tray icon (and a secondary click elsewhere) get
    // the three things one does from the tray. Made once the icon is on its way: neither a click
    // nor a panel's question for the menu reaches us before the event loop runs again.
    if (!m_statusMenu) {
        m_statusMenu = std::make_unique<QMenu>();
        m_statusMenu->addAction(tr("Pick Color"), this, &AppDelegate::pickColor);
        m_statusMenu->addAction(tr("Settings…"), this, &AppDelegate::openSettings);
        m_statusMenu->addSeparator();
        m_statusMenu->addAction(tr("Quit vantle"), qApp, &QCoreApplication::quit);
        m_statusItem->setContextMenu(m_statusMenu.get());
    }
    if (m_popover && m_popover->isStandalone()) {
        // The tray appeared after we gave up waiting: move into it.
        m_popover->hide();
        m_popover->setStandalone(false);
    }
}

void AppDelegate::useStandaloneWindow()
{
    // No tray on this desktop: the popup becomes a small ordinary window, shown now; closing it
    // keeps Vantle running, and `vantle toggle` or the popup shortcut brings it back.
    m_popover->setStandalone(true);
    refreshPopoverContent();
    m_popover->popUp(QRect());
}

bool AppDelegate::isStandalone() const
{
    return m_popover && m_popover->isStandalone();
}

QRect AppDelegate::trayIconPlace() const
{
    const QRect icon = m_statusItem ? m_statusItem->geometry() : QRect();
    if (!icon.isEmpty() || !m_facilities.isOnGnomeTopBar)
        return icon;
    // The top bar's tray is its right end: the popup opens below the bar there, not under a
    // pointer position that XWayland does not know while it is over the shell.
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return icon;
    const QRect available = screen->availableGeometry();
    const int barHeight = qMax(1, available.top() - screen->geometry().top());
    return QRect(available.right() - 31, screen->geometry().top(), 32, barHeight);
}

bool AppDelegate::isPanelDark() const
{
    // The icon's tint follows the panel it sits on, not the windows' style.
    return m_facilities.isOnGnomeTopBar || m_facilities.appearance.isDark();
}

void AppDelegate::updateStatusItemIcon()
{
    if (!m_statusItem)
        return;
    const bool dark = isPanelDark();
    const QList<PickedColor> &colors = m_viewModel->colors();
    QImage image;
    if (!m_facilities.store.boolForKey(showColorDot) || colors.isEmpty()) {
        image = StatusIcon::plainIcon(dark, 2.0);
    } else {
        const PickedColor &newest = colors.first();
        image = StatusIcon::iconWithDot(dark, QColor::fromRgbF(newest.red, newest.green, newest.blue), 2.0);
    }
    m_statusItem->setIcon(QIcon(QPixmap::fromImage(image)));
    Q_EMIT statusItemIconChanged();
}

void AppDelegate::refreshPopoverContent()
{
    QPointer<AppDelegate> self(this);
    m_popover->setContent([self]() -> QWidget * {
        if (!self)
            return nullptr;
        auto *view = new ColorListView(
            *self->m_viewModel, self->m_facilities.store,
            [self] {
                if (self)
                    self->openSettings();
            },
            [self] {
                if (self)
                    qApp->quit();
            });
        // The popup's room beside the tray icon bounds the view; its lists scroll within it.
        view->setHeightLimit(self->m_popover->heightLimit());
        connect(
            self->m_popover.get(), &PopupWindow::heightLimitChanged, view, &ColorListView::setHeightLimit);
        return view;
    });
}

// `vantle toggle` and a second start come from a key the desktop binds or a launcher: like the
// popup shortcut, they open the popup with the focus ring on Pick Color.
void AppDelegate::togglePopover()
{
    togglePopoverWith(Qt::ShortcutFocusReason);
}

void AppDelegate::togglePopoverWith(Qt::FocusReason reason)
{
    if (!m_popover || (!m_statusItem && !isStandalone()))
        return; // still waiting for the tray
    if (m_popover->isVisible()) {
        refreshPopoverContent();
        m_popover->close();
        return;
    }
    if (!isStandalone() && m_popover->justClosedByOutsideClick())
        return; // this very click on the tray icon closed it
    refreshPopoverContent();
    m_popover->popUp(trayIconPlace(), reason);
}

void AppDelegate::pickColor()
{
    if (!m_viewModel)
        return; // a request that came in before launching finished
    m_viewModel->pickColor();
}

void AppDelegate::completeOnboarding()
{
    m_facilities.store.setBool(onboardingShown, true);
    if (m_onboardingWindow) {
        m_onboardingWindow->close();
        m_onboardingWindow.release()->deleteLater(); // we may be inside its button's signal
    }
}

void AppDelegate::openSettings()
{
    if (m_popover && m_popover->isVisible() && !isStandalone())
        m_popover->close();
    if (!m_viewModel)
        return; // before launching finished there is nothing to set yet
    if (!m_settingsWindow)
        m_settingsWindow = std::make_unique<SettingsWindow>(m_facilities.store, *m_hotkeyManager,
            m_facilities.loginItems, *m_updaterController, m_viewModel.get());
    m_settingsWindow->open();
}
