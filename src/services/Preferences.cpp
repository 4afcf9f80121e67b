// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/Preferences.h"

#include "services/SettingsStore.h"

StoredShortcut ShortcutPreference::read(const SettingsStore &store) const
{
    return { store.integerForKey(keyCodeKey), store.integerForKey(modifiersKey),
        store.stringForKey(keyCharKey).value_or(QString()) };
}

void ShortcutPreference::write(SettingsStore &store, const StoredShortcut &shortcut) const
{
    store.setInteger(keyCodeKey, shortcut.keyCode);
    store.setInteger(modifiersKey, shortcut.modifiers);
    store.setString(keyCharKey, shortcut.keyChar);
}
