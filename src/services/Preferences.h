// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/PreferenceKeys.h"

#include <QString>
#include <QVariant>
#include <QtGlobal>
#include <utility>

class SettingsStore;

// A preference with a registered default: its key, the type it is read as, and the value the
// store answers until the user sets one of their own.
template<typename T> struct Preference {
    QString key;
    T defaultValue;

    // The key and its default as the store registers them.
    std::pair<QString, QVariant> registration() const { return { key, QVariant::fromValue(defaultValue) }; }
};

// A global shortcut as three preferences hold it: a key code and modifier flags as in
// hotkeys/KeyCodes.h, and the key's text as the recorder showed it. Key code -1: none set.
struct StoredShortcut {
    qint64 keyCode = -1;
    qint64 modifiers = 0;
    QString keyChar;

    bool operator==(const StoredShortcut &) const = default;
};

// The three keys of one shortcut, and the shortcut given at launch while none is set (key code -1).
struct ShortcutPreference {
    QString keyCodeKey;
    QString modifiersKey;
    QString keyCharKey;
    StoredShortcut seed;

    // The key code reads as unset (-1) until a shortcut is stored.
    std::pair<QString, QVariant> registration() const { return { keyCodeKey, StoredShortcut {}.keyCode }; }

    // Read afresh at every call; a missing value reads as the store's 0 or empty text.
    StoredShortcut read(const SettingsStore &store) const;
    // Key code, modifiers, then the text, each written (and signalled) on its own.
    void write(SettingsStore &store, const StoredShortcut &shortcut) const;
};

// Every preference that has a default, declared once.
namespace Preferences {

inline const Preference<QString> colorFormat { PreferenceKeys::colorFormat, QStringLiteral("Hex") };
inline const Preference<bool> launchAtLogin { PreferenceKeys::launchAtLogin, true };
inline const Preference<bool> showColorDot { PreferenceKeys::showColorDot, false };
// Recent colours kept; pinned ones come on top. Also the limit when the stored one is not positive.
inline const Preference<qint64> historyLimit { PreferenceKeys::historyLimit, 50 };
inline const Preference<bool> onboardingShown { PreferenceKeys::onboardingShown, false };
inline const Preference<bool> automaticallyUpdate { PreferenceKeys::automaticallyUpdate, true };

// Alt+Shift+C picks, Alt+Shift+X shows the popover: key codes 8 and 7 of the stored key table,
// modifiers option (Alt) 524288 + shift 131072.
inline const ShortcutPreference pickShortcut { PreferenceKeys::pickKeyCode, PreferenceKeys::pickModifiers,
    PreferenceKeys::pickKeyChar, { 8, 655360, QStringLiteral("C") } };
inline const ShortcutPreference popoverShortcut { PreferenceKeys::popoverKeyCode,
    PreferenceKeys::popoverModifiers, PreferenceKeys::popoverKeyChar, { 7, 655360, QStringLiteral("X") } };

} // namespace Preferences
