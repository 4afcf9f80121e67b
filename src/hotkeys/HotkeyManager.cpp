#include "hotkeys/HotkeyManager.h"

#include "hotkeys/GlobalShortcutBackend.h"
#include "hotkeys/KeyCodes.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

HotkeyManager::HotkeyManager(SettingsStore &store, GlobalShortcutBackend &backend, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_backend(backend)
{
}

HotkeyManager::~HotkeyManager() = default;

void HotkeyManager::installEventHandler()
{
    if (m_isHandlerInstalled)
        return;
    m_isHandlerInstalled = true;
    connect(&m_backend, &GlobalShortcutBackend::activated, this, &HotkeyManager::handleActivated);
}

void HotkeyManager::registerPickHotkey()
{
    registerHotkey(pickId, PreferenceKeys::pickKeyCode, PreferenceKeys::pickModifiers);
}

void HotkeyManager::registerPopoverHotkey()
{
    registerHotkey(popoverId, PreferenceKeys::popoverKeyCode, PreferenceKeys::popoverModifiers);
}

void HotkeyManager::registerHotkey(int id, const QString &keyCodeKey, const QString &modifiersKey)
{
    if (m_isSuspended)
        return;
    const qint64 keyCode = m_store.integerForKey(keyCodeKey);
    const qint64 modifiers = m_store.integerForKey(modifiersKey);
    // -1 means "not set"; values the recorder never writes count as not set too.
    if (!KeyCodes::isShortcutSet(keyCode, modifiers))
        return;

    GlobalShortcut shortcut;
    shortcut.id = id;
    shortcut.keyCode = quint32(keyCode);
    shortcut.modifiers = modifiers & KeyCodes::allFlags;
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
