// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class GlobalShortcutBackend;
class SettingsStore;
struct ShortcutPreference;

// The program's two system-wide shortcuts: pick a colour (id 1) and show or hide the popover
// (id 2). The shortcuts live in the preferences (services/Preferences.h); the manager reads them afresh every
// time it registers and turns a press into a signal. It knows nothing of what the shortcuts do.
//
// Observers connect with Qt::QueuedConnection so their work runs on the main thread just after
// the press, outside the backend's event handling.
class HotkeyManager : public QObject {
    Q_OBJECT
public:
    static constexpr int pickId = 1;
    static constexpr int popoverId = 2;

    HotkeyManager(SettingsStore &store, GlobalShortcutBackend &backend, QObject *parent = nullptr);
    ~HotkeyManager() override;

    // Starts turning the backend's presses into signals. Called once, at launch.
    void installEventHandler();
    void registerPickHotkey();
    void registerPopoverHotkey();
    // Whether the desktop keeps the shortcuts among its own keyboard settings.
    bool areShortcutsKeptByDesktop() const;
    // Releases both shortcuts, pick first.
    void unregisterAll();
    // unregisterAll(), then pick, then popover.
    void reregisterAll();

    // While a shortcut recorder is listening, the manager's own grabs would take the very
    // press the user is recording: a suspended manager holds no shortcut, and registers both
    // again from the preferences when it resumes.
    void setSuspended(bool isSuspended);
    bool isSuspended() const { return m_isSuspended; }

Q_SIGNALS:
    void pickHotkeyFired();
    void popoverHotkeyFired();

private:
    void registerHotkey(int id, const ShortcutPreference &preference);
    void handleActivated(int id);

    SettingsStore &m_store;
    GlobalShortcutBackend &m_backend;
    bool m_isPickRegistered = false;
    bool m_isPopoverRegistered = false;
    bool m_isHandlerInstalled = false;
    bool m_isSuspended = false;
};
