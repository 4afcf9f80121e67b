// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class ColorListViewModel;
class HotkeyManager;
class LoginItemService;
class SettingsStore;
class SettingsView;
class UpdaterController;

// The application's settings window, held for the whole run by the application shell. A visible
// window is only brought to the front; once the user closed it, the next opening builds a fresh
// window and view, which start on the General page.
class SettingsWindow {
public:
    // All references are owned by the caller and outlive this object. `viewModel` may be null.
    SettingsWindow(SettingsStore &store, HotkeyManager &hotkeyManager, LoginItemService &loginItems,
        UpdaterController &updaterController, ColorListViewModel *viewModel);
    ~SettingsWindow();
    SettingsWindow(const SettingsWindow &) = delete;
    SettingsWindow &operator=(const SettingsWindow &) = delete;

    // "Vantle Settings", 450 × 520, not resizable, centred on the screen under the pointer,
    // raised and activated.
    void open();

    // The current window (visible or closed), or null before the first opening.
    SettingsView *view() const { return m_view.get(); }

private:
    SettingsStore &m_store;
    HotkeyManager &m_hotkeyManager;
    LoginItemService &m_loginItems;
    UpdaterController &m_updaterController;
    ColorListViewModel *m_viewModel;
    std::unique_ptr<SettingsView> m_view;
};
