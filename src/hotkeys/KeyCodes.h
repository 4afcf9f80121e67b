// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <Qt>
#include <QtGlobal>
#include <optional>

// The one key table of the program. A shortcut is stored as a virtual key code of the
// original Mac keyboard (8 = C, 7 = X, 53 = Escape, 83 = keypad 1, ...) plus modifier flag
// bits, so the preferences stay compatible with the values the product has always written;
// keys Macs have no code for are stored as 0x100 plus their Linux input event code. The table
// holds every key the standard X keymap gives a keysym, modifiers and locks aside. Everything
// that meets a real keyboard (Qt key events, X keysyms, X key codes, the portal's notation)
// converts through here.
namespace KeyCodes {

// Stored modifier flag bits. Any other bit in a stored value is ignored.
inline constexpr qint64 shiftFlag = 131072; // bit 17
inline constexpr qint64 controlFlag = 262144; // bit 18
inline constexpr qint64 optionFlag = 524288; // bit 19, Alt on Linux
inline constexpr qint64 commandFlag = 1048576; // bit 20, Super (the logo key) on Linux
inline constexpr qint64 allFlags = shiftFlag | controlFlag | optionFlag | commandFlag;

inline constexpr int escapeKeyCode = 53;

// A stored key code fits in an unsigned 32-bit value and the modifiers are not negative;
// anything else counts as "no shortcut".
bool isShortcutSet(qint64 keyCode, qint64 modifiers);

// Conversions between stored key codes and platform keys. A key outside the table has none.
// Keypad keys are Qt keys with Qt::KeypadModifier added (keypad 1 is not the 1 key); keys Qt
// has no key of its own for are found by their scan code only.
std::optional<int> qtKeyForKeyCode(qint64 keyCode);
std::optional<int> keyCodeForQtKey(int qtKey);
std::optional<quint32> keysymForKeyCode(qint64 keyCode);
std::optional<int> keyCodeForKeysym(quint32 keysym);
// X key codes of the evdev driver (also what Qt reports as the native scan code on X11 and
// Wayland): the physical key, independent of the layout.
std::optional<int> keyCodeForXKeycode(quint32 xKeycode);
std::optional<quint32> xKeycodeForKeyCode(qint64 keyCode);
// The keysym name as the xkb tools spell it ("c", "F1", "bracketleft", "XF86AudioPlay").
QString keysymNameForKeyCode(qint64 keyCode);
// What to show for a key that types no character ("F1", "Space", "←", "1" for keypad 1 with
// Num Lock off); empty for keys that type one and for those Qt names better ("Media Play").
QString keyNameForKeyCode(qint64 keyCode);

// The X modifier mask bits of the four stored flags, as found in the server's mapping.
struct X11ModifierBits {
    quint16 shift = 0x01;
    quint16 control = 0x04;
    quint16 alt = 0x08; // Mod1 on every common keymap
    quint16 super = 0x40; // Mod4
};
quint16 x11Modifiers(qint64 storedModifiers, const X11ModifierBits &bits = {});

// Qt's modifiers, both ways; every other Qt modifier (keypad, group switch) is dropped.
Qt::KeyboardModifiers qtModifiers(qint64 storedModifiers);
qint64 storedModifiersForQt(Qt::KeyboardModifiers modifiers);

// "ALT+SHIFT+c": the shortcut in the notation of the desktop's GlobalShortcuts portal.
QString portalTrigger(qint64 keyCode, qint64 modifiers);

// "Alt+Shift+C": the shortcut in the words Linux desktops use, modifiers in the fixed order
// Ctrl, Alt, Shift, Super, then the key text. Empty when the key text is empty or the
// modifiers are negative.
QString shortcutDesktopText(qint64 modifiers, const QString &keyChar);

} // namespace KeyCodes
