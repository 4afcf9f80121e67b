// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/HotkeyManager.h"

#include "hotkeys/GlobalShortcutBackend.h"
#include "hotkeys/KeyCodes.h"
#include "services/Preferences.h"
#include "services/SettingsStore.h"

HotkeyManager::HotkeyManager(SettingsStore &store, GlobalShortcutBackend &backend, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_backend(backend)
{
}

HotkeyManager::~HotkeyManager() = default;

bool HotkeyManager::areShortcutsKeptByDesktop() const
{
    return m_backend.areShortcutsKeptByDesktop();
}

void HotkeyManager::installEventHandler()
{
    if (m_isHandlerInstalled)
        return;
    m_isHandlerInstalled = true;
    connect(&m_backend, &GlobalShortcutBackend::activated, this, &HotkeyManager::handleActivated);
}

void HotkeyManager::registerPickHotkey()
{
    registerHotkey(pickId, Preferences::pickShortcut);
}

void HotkeyManager::registerPopoverHotkey()
{
    registerHotkey(popoverId, Preferences::popoverShortcut);
}

void HotkeyManager::registerHotkey(int id, const ShortcutPreference &preference)
{
    if (m_isSuspended)
        return;
    const StoredShortcut stored = preference.read(m_store);
    // -1 means "not set"; values the recorder never writes count as not set too.
    if (!KeyCodes::isShortcutSet(stored.keyCode, stored.modifiers))
        return;

    GlobalShortcut shortcut;
    shortcut.id = id;
    shortcut.keyCode = quint32(stored.keyCode);
    shortcut.modifiers = stored.modifiers & KeyCodes::allFlags;
    if (id == pickId) {
        shortcut.name = QStringLiteral("pick");
        shortcut.description = tr("Pick a color");
        m_isPickRegistered = true;
    } else {
        shortcut.name = QStringLiteral("popover");
        shortcut.description = tr("Show or hide Vantle");
        m_isPopoverRegistered = true;
    }
    // A refusal by the desktop is not examined: the shortcut simply does not fire.
    m_backend.registerShortcut(shortcut);
}

void HotkeyManager::unregisterAll()
{
    if (m_isPickRegistered) {
        m_backend.unregisterShortcut(pickId);
        m_isPickRegistered = false;
    }
    if (m_isPopoverRegistered) {
        m_backend.unregisterShortcut(popoverId);
        m_isPopoverRegistered = false;
    }
}

void HotkeyManager::reregisterAll()
{
    unregisterAll();
    registerPickHotkey();
    registerPopoverHotkey();
}

void HotkeyManager::setSuspended(bool isSuspended)
{
    if (m_isSuspended == isSuspended)
        return;
    m_isSuspended = isSuspended;
    if (isSuspended)
        unregisterAll();
    else
        reregisterAll();
}

void HotkeyManager::handleActivated(int id)
{
    // Any other id is ignored.
    if (id == pickId)
        Q_EMIT pickHotkeyFired();
    else if (id == popoverId)
        Q_EMIT popoverHotkeyFired();
}
