// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

class AppearanceMonitor;
class Clipboard;
class ColorListViewModel;
class CopyConfirmation;
class ExportDialogs;
class GlobalShortcutBackend;
class HotkeyManager;
class LoginItemService;
class OnboardingWindow;
class PopupWindow;
class WindowRoles;
class QMenu;
class UpdateNetwork;
class QSystemTrayIcon;
class ScreenColorSampler;
class SettingsStore;
class SettingsWindow;
class TrayHost;
class UpdateUserInterface;
class UpdaterController;

// The program's spine: owns everything that lives for the whole run (the history model, the
// shortcuts, the tray icon and its popup, the settings and welcome windows, the updater) and
// runs the launch sequence in its fixed order. Everything on the main thread; reactions to
// shortcuts, requests and settings changes run just after their signal (queued), never inside.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    // The platform facilities chosen once at start-up; owned by the caller, outliving this.
    struct Facilities {
        SettingsStore &store;
        ScreenColorSampler &sampler;
        Clipboard &clipboard;
        CopyConfirmation &confirmation;
        ExportDialogs &exportDialogs;
        GlobalShortcutBackend &shortcuts;
        LoginItemService &loginItems;
        AppearanceMonitor &appearance;
        UpdateNetwork &network;
        UpdateUserInterface &updateInterface;
        // Qt's windows are Wayland surfaces, which the compositor places.
        bool isWayland;
        // How the desktop is told where the popup goes (Wayland); null where it needs no telling.
        WindowRoles *windowRoles = nullptr;
        // The tray sits on GNOME's top bar: dark in light and dark styles alike, and at the top
        // right of the screen, where the icon's own place is not told.
        bool isOnGnomeTopBar = false;
    };

    explicit AppDelegate(Facilities facilities, QObject *parent = nullptr);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    void updateStatusItemIcon();
    void refreshPopoverContent();
    void togglePopover();
    void openSettings();
    void completeOnboarding();
    void pickColor();

    // For tests and the command line's requests.
    ColorListViewModel *viewModel() const { return m_viewModel.get(); }
    HotkeyManager *hotkeyManager() const { return m_hotkeyManager.get(); }
    QSystemTrayIcon *statusItem() const { return m_statusItem.get(); }
    PopupWindow *popover() const { return m_popover.get(); }
    OnboardingWindow *onboardingWindow() const { return m_onboardingWindow.get(); }
    SettingsWindow *settingsWindow() const { return m_settingsWindow.get(); }
    UpdaterController &updaterController() const { return *m_updaterController; }

    // How long to wait for a tray host at launch before showing the popup as a window.
    static constexpr int trayHostWaitMs = 10000;

Q_SIGNALS:
    void statusItemIconChanged();

private:
    bool isPanelDark() const;
    // Where the tray icon is, for placing the popup beside it; empty where unknown.
    QRect trayIconPlace() const;
    void createStatusItem();
    void showStatusItem();
    void useStandaloneWindow();
    void applyDefaultShortcuts();
    bool isStandalone() const;
    // `reason` is how the focus reaches the popup's content when this opens it.
    void togglePopoverWith(Qt::FocusReason reason);

    Facilities m_facilities;
    std::unique_ptr<UpdaterController> m_updaterController; // the one object made before launch
    std::unique_ptr<ColorListViewModel> m_viewModel;
    std::unique_ptr<HotkeyManager> m_hotkeyManager;
    std::unique_ptr<QSystemTrayIcon> m_statusItem;
    std::unique_ptr<QMenu> m_statusMenu;
    std::unique_ptr<PopupWindow> m_popover;
    std::unique_ptr<SettingsWindow> m_settingsWindow;
    std::unique_ptr<OnboardingWindow> m_onboardingWindow;
    TrayHost *m_trayHost = nullptr;
    bool m_shortcutsRegistered = false; // the launch has registered them: the icon may show
};
