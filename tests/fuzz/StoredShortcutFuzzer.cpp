// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file as found on disk, read through the store, with the shortcut values the
// hotkey manager registers: whatever the file says, the store opens, the values convert
// without trouble, and the conversions agree with each other.
#include "FuzzCheck.h"

#include "hotkeys/KeyCodes.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

void fuzzOne(const QByteArray &input)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Vantle.conf"));
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(input) == input.size());
    file.close();
    {
        SettingsStore store(path);
        for (const ShortcutPreference &preference :
            { Preferences::pickShortcut, Preferences::popoverShortcut }) {
            const auto [keyCode, modifiers, keyChar] = preference.read(store);
            const QString display = KeyCodes::shortcutDesktopText(modifiers, keyChar);
            FUZZ_CHECK(display.isEmpty() == (keyChar.isEmpty() || modifiers < 0));
            if (!KeyCodes::isShortcutSet(keyCode, modifiers))
                continue;
            FUZZ_CHECK(keyCode >= 0 && keyCode <= 0xFFFFFFFFLL && modifiers >= 0);
            FUZZ_CHECK(KeyCodes::storedModifiersForQt(KeyCodes::qtModifiers(modifiers))
                == (modifiers & KeyCodes::allFlags));
            (void)KeyCodes::x11Modifiers(modifiers), (void)KeyCodes::portalTrigger(keyCode, modifiers);
            (void)KeyCodes::keyNameForKeyCode(keyCode), (void)KeyCodes::keysymNameForKeyCode(keyCode);
            if (const std::optional<int> qtKey = KeyCodes::qtKeyForKeyCode(keyCode))
                FUZZ_CHECK(KeyCodes::qtKeyForKeyCode(*KeyCodes::keyCodeForQtKey(*qtKey)) == qtKey);
            if (const std::optional<quint32> keysym = KeyCodes::keysymForKeyCode(keyCode))
                FUZZ_CHECK(KeyCodes::keysymForKeyCode(*KeyCodes::keyCodeForKeysym(*keysym)) == keysym);
            if (const std::optional<quint32> xKeycode = KeyCodes::xKeycodeForKeyCode(keyCode))
                FUZZ_CHECK(KeyCodes::keyCodeForXKeycode(*xKeycode) == keyCode);
        }
        if (const std::optional<QByteArray> history = store.dataForKey(PreferenceKeys::colorHistory))
            (void)decodeColorHistory(*history);
    }
    // An unreadable file is copied aside each time; keep the folder small.
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
        QFile::remove(folder.filePath(name));
}
