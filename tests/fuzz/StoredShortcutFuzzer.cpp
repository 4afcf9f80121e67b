// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file as found on disk, read through the store, with the shortcut values the
// hotkey manager registers: whatever the file says, the store opens, the values convert
// without trouble, and the conversions agree with each other.
#include "FuzzCheck.h"

#include "hotkeys/KeyCodes.h"
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

void checkShortcut(SettingsStore &store, const ShortcutPreference &preference)
{
    const auto [keyCode, modifiers, keyChar] = preference.read(store);

    const QString display = KeyCodes::shortcutDesktopText(modifiers, keyChar);
    FUZZ_CHECK(display.isEmpty() == (keyChar.isEmpty() || modifiers < 0));
    if (!KeyCodes::isShortcutSet(keyCode, modifiers))
        return;
    FUZZ_CHECK(keyCode >= 0 && keyCode <= 0xFFFFFFFFLL && modifiers >= 0);
    const qint64 flags = modifiers & KeyCodes::allFlags;
    FUZZ_CHECK(KeyCodes::storedModifiersForQt(KeyCodes::qtModifiers(modifiers)) == flags);
    (void)KeyCodes::x11Modifiers(modifiers);
    (void)KeyCodes::keyNameForKeyCode(keyCode);
    (void)KeyCodes::keysymNameForKeyCode(keyCode);
    (void)KeyCodes::portalTrigger(keyCode, modifiers);
    if (const std::optional<int> qtKey = KeyCodes::qtKeyForKeyCode(keyCode))
        FUZZ_CHECK(KeyCodes::qtKeyForKeyCode(*KeyCodes::keyCodeForQtKey(*qtKey)) == qtKey);
    if (const std::optional<quint32> keysym = KeyCodes::keysymForKeyCode(keyCode))
        FUZZ_CHECK(KeyCodes::keysymForKeyCode(*KeyCodes::keyCodeForKeysym(*keysym)) == keysym);
    if (const std::optional<quint32> xKeycode = KeyCodes::xKeycodeForKeyCode(keyCode))
        FUZZ_CHECK(KeyCodes::keyCodeForXKeycode(*xKeycode) == keyCode);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Vantle.conf"));
    {
        QFile file(path);
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        FUZZ_CHECK(
            file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) == qint64(size));
    }
    {
        SettingsStore store(path);
        checkShortcut(store, Preferences::pickShortcut);
        checkShortcut(store, Preferences::popoverShortcut);
        (void)store.boolForKey(PreferenceKeys::showColorDot);
        (void)store.integerForKey(PreferenceKeys::historyLimit);
        (void)store.stringForKey(PreferenceKeys::colorFormat);
        if (const std::optional<QByteArray> history = store.dataForKey(PreferenceKeys::colorHistory))
            (void)decodeColorHistory(*history);
    }
    // An unreadable file is copied aside each time; keep the folder small.
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
        QFile::remove(folder.filePath(name));
    return 0;
}
