// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/KeyCodes.h"

#include <QCoreApplication>
#include <QStringList>
#include <array>
#include <limits>

namespace KeyCodes {
namespace {

struct Key {
    int keyCode; // stored: a Mac virtual key code, or evdevBase plus the evdev code
    int qtKey; // Qt::Key (with Qt::KeypadModifier on keypad keys); 0: reached by scan code only
    quint32 keysym; // X keysym the key gives in the standard keymap (US layout, evdev rules)
    quint32 xKeycode; // evdev X key code: the physical key
    const char *keysymName;
    const char *name; // shown for keys that type no character; none: Qt's own name for the key
};

// Keys Macs have no code for (media and launch keys, F21-F24, the ISO and Japanese extra keys,
// ...) are stored as this plus the key's Linux input event code (KEY_* in
// linux/input-event-codes.h, the X key code less 8). Those codes are kernel ABI and never
// renumbered, and they name the physical key as the Mac codes do; Mac codes end at 0x7F, so
// the two ranges cannot meet, and the sum stays within the 16 bits a key code has always had.
constexpr int evdevBase = 0x100;

constexpr int keypad(Qt::Key key)
{
    return QKeyCombination(Qt::KeypadModifier, key).toCombined();
}

// clang-format off
constexpr std::array keys{
    Key{0, Qt::Key_A, 0x61, 38, "a", nullptr},   Key{11, Qt::Key_B, 0x62, 56, "b", nullptr},
    Key{8, Qt::Key_C, 0x63, 54, "c", nullptr},   Key{2, Qt::Key_D, 0x64, 40, "d", nullptr},
    Key{14, Qt::Key_E, 0x65, 26, "e", nullptr},  Key{3, Qt::Key_F, 0x66, 41, "f", nullptr},
    Key{5, Qt::Key_G, 0x67, 42, "g", nullptr},   Key{4, Qt::Key_H, 0x68, 43, "h", nullptr},
    Key{34, Qt::Key_I, 0x69, 31, "i", nullptr},  Key{38, Qt::Key_J, 0x6a, 44, "j", nullptr},
    Key{40, Qt::Key_K, 0x6b, 45, "k", nullptr},  Key{37, Qt::Key_L, 0x6c, 46, "l", nullptr},
    Key{46, Qt::Key_M, 0x6d, 58, "m", nullptr},  Key{45, Qt::Key_N, 0x6e, 57, "n", nullptr},
    Key{31, Qt::Key_O, 0x6f, 32, "o", nullptr},  Key{35, Qt::Key_P, 0x70, 33, "p", nullptr},
    Key{12, Qt::Key_Q, 0x71, 24, "q", nullptr},  Key{15, Qt::Key_R, 0x72, 27, "r", nullptr},
    Key{1, Qt::Key_S, 0x73, 39, "s", nullptr},   Key{17, Qt::Key_T, 0x74, 28, "t", nullptr},
    Key{32, Qt::Key_U, 0x75, 30, "u", nullptr},  Key{9, Qt::Key_V, 0x76, 55, "v", nullptr},
    Key{13, Qt::Key_W, 0x77, 25, "w", nullptr},  Key{7, Qt::Key_X, 0x78, 53, "x", nullptr},
    Key{16, Qt::Key_Y, 0x79, 29, "y", nullptr},  Key{6, Qt::Key_Z, 0x7a, 52, "z", nullptr},

    Key{29, Qt::Key_0, 0x30, 19, "0", nullptr},  Key{18, Qt::Key_1, 0x31, 10, "1", nullptr},
    Key{19, Qt::Key_2, 0x32, 11, "2", nullptr},  Key{20, Qt::Key_3, 0x33, 12, "3", nullptr},
    Key{21, Qt::Key_4, 0x34, 13, "4", nullptr},  Key{23, Qt::Key_5, 0x35, 14, "5", nullptr},
    Key{22, Qt::Key_6, 0x36, 15, "6", nullptr},  Key{26, Qt::Key_7, 0x37, 16, "7", nullptr},
    Key{28, Qt::Key_8, 0x38, 17, "8", nullptr},  Key{25, Qt::Key_9, 0x39, 18, "9", nullptr},

    Key{27, Qt::Key_Minus, 0x2d, 20, "minus", nullptr},
    Key{24, Qt::Key_Equal, 0x3d, 21, "equal", nullptr},
    Key{33, Qt::Key_BracketLeft, 0x5b, 34, "bracketleft", nullptr},
    Key{30, Qt::Key_BracketRight, 0x5d, 35, "bracketright", nullptr},
    Key{42, Qt::Key_Backslash, 0x5c, 51, "backslash", nullptr},
    Key{41, Qt::Key_Semicolon, 0x3b, 47, "semicolon", nullptr},
    Key{39, Qt::Key_Apostrophe, 0x27, 48, "apostrophe", nullptr},
    Key{50, Qt::Key_QuoteLeft, 0x60, 49, "grave", nullptr},
    Key{43, Qt::Key_Comma, 0x2c, 59, "comma", nullptr},
    Key{47, Qt::Key_Period, 0x2e, 60, "period", nullptr},
    Key{44, Qt::Key_Slash, 0x2f, 61, "slash", nullptr},

    Key{49, Qt::Key_Space, 0x20, 65, "space", "Space"},
    Key{36, Qt::Key_Return, 0xff0d, 36, "Return", "↩"},
    Key{48, Qt::Key_Tab, 0xff09, 23, "Tab", "⇥"},
    Key{51, Qt::Key_Backspace, 0xff08, 22, "BackSpace", "⌫"},
    Key{117, Qt::Key_Delete, 0xffff, 119, "Delete", "⌦"},
    Key{53, Qt::Key_Escape, 0xff1b, 9, "Escape", "⎋"},
    Key{123, Qt::Key_Left, 0xff51, 113, "Left", "←"},
    Key{124, Qt::Key_Right, 0xff53, 114, "Right", "→"},
    Key{125, Qt::Key_Down, 0xff54, 116, "Down", "↓"},
    Key{126, Qt::Key_Up, 0xff52, 111, "Up", "↑"},
    Key{115, Qt::Key_Home, 0xff50, 110, "Home", "↖"},
    Key{119, Qt::Key_End, 0xff57, 115, "End", "↘"},
    Key{116, Qt::Key_PageUp, 0xff55, 112, "Prior", "⇞"},
    Key{121, Qt::Key_PageDown, 0xff56, 117, "Next", "⇟"},

    Key{122, Qt::Key_F1, 0xffbe, 67, "F1", "F1"},    Key{120, Qt::Key_F2, 0xffbf, 68, "F2", "F2"},
    Key{99, Qt::Key_F3, 0xffc0, 69, "F3", "F3"},     Key{118, Qt::Key_F4, 0xffc1, 70, "F4", "F4"},
    Key{96, Qt::Key_F5, 0xffc2, 71, "F5", "F5"},     Key{97, Qt::Key_F6, 0xffc3, 72, "F6", "F6"},
    Key{98, Qt::Key_F7, 0xffc4, 73, "F7", "F7"},     Key{100, Qt::Key_F8, 0xffc5, 74, "F8", "F8"},
    Key{101, Qt::Key_F9, 0xffc6, 75, "F9", "F9"},    Key{109, Qt::Key_F10, 0xffc7, 76, "F10", "F10"},
    Key{103, Qt::Key_F11, 0xffc8, 95, "F11", "F11"}, Key{111, Qt::Key_F12, 0xffc9, 96, "F12", "F12"},
    // F13 and up: the standard keymap gives most of them launcher keysyms (keyboards that have
    // such keys send these codes for them), and a grab goes by what the keymap gives.
    Key{105, Qt::Key_F13, 0x1008ff81, 191, "XF86Tools", "F13"},
    Key{107, Qt::Key_F14, 0x1008ff45, 192, "XF86Launch5", "F14"},
    Key{113, Qt::Key_F15, 0x1008ff46, 193, "XF86Launch6", "F15"},
    Key{106, Qt::Key_F16, 0x1008ff47, 194, "XF86Launch7", "F16"},
    Key{64, Qt::Key_F17, 0x1008ff48, 195, "XF86Launch8", "F17"},
    Key{79, Qt::Key_F18, 0x1008ff49, 196, "XF86Launch9", "F18"},
    Key{80, Qt::Key_F19, 0xffd0, 197, "F19", "F19"},
    Key{90, Qt::Key_F20, 0x1008ffb2, 198, "XF86AudioMicMute", "F20"},
    Key{evdevBase + 191, Qt::Key_F21, 0x1008ffa9, 199, "XF86TouchpadToggle", "F21"},
    Key{evdevBase + 192, Qt::Key_F22, 0x1008ffb0, 200, "XF86TouchpadOn", "F22"},
    Key{evdevBase + 193, Qt::Key_F23, 0x1008ffb1, 201, "XF86TouchpadOff", "F23"},
    Key{evdevBase + 194, Qt::Key_F24, 0xffd5, 202, "F24", "F24"},

    // The keypad, whatever Num Lock says: a key types its digit with it on and moves the
    // cursor with it off, and is the same key either way.
    Key{82, keypad(Qt::Key_0), 0xffb0, 90, "KP_0", "0"},
    Key{83, keypad(Qt::Key_1), 0xffb1, 87, "KP_1", "1"},
    Key{84, keypad(Qt::Key_2), 0xffb2, 88, "KP_2", "2"},
    Key{85, keypad(Qt::Key_3), 0xffb3, 89, "KP_3", "3"},
    Key{86, keypad(Qt::Key_4), 0xffb4, 83, "KP_4", "4"},
    Key{87, keypad(Qt::Key_5), 0xffb5, 84, "KP_5", "5"},
    Key{88, keypad(Qt::Key_6), 0xffb6, 85, "KP_6", "6"},
    Key{89, keypad(Qt::Key_7), 0xffb7, 79, "KP_7", "7"},
    Key{91, keypad(Qt::Key_8), 0xffb8, 80, "KP_8", "8"},
    Key{92, keypad(Qt::Key_9), 0xffb9, 81, "KP_9", "9"},
    Key{65, keypad(Qt::Key_Period), 0xffae, 91, "KP_Decimal", "."},
    Key{67, keypad(Qt::Key_Asterisk), 0xffaa, 63, "KP_Multiply", "*"},
    Key{69, keypad(Qt::Key_Plus), 0xffab, 86, "KP_Add", "+"},
    Key{75, keypad(Qt::Key_Slash), 0xffaf, 106, "KP_Divide", "/"},
    Key{76, keypad(Qt::Key_Enter), 0xff8d, 104, "KP_Enter", "⌤"},
    Key{78, keypad(Qt::Key_Minus), 0xffad, 82, "KP_Subtract", "-"},
    Key{81, keypad(Qt::Key_Equal), 0xffbd, 125, "KP_Equal", "="},

    // Insert sits where the Mac keyboard has Help, and macOS gives it that code.
    Key{114, Qt::Key_Insert, 0xff63, 118, "Insert", "Insert"},
    Key{110, Qt::Key_Menu, 0xff67, 135, "Menu", "Menu"},
    Key{72, Qt::Key_VolumeUp, 0x1008ff13, 123, "XF86AudioRaiseVolume", nullptr},
    Key{73, Qt::Key_VolumeDown, 0x1008ff11, 122, "XF86AudioLowerVolume", nullptr},
    Key{74, Qt::Key_VolumeMute, 0x1008ff12, 121, "XF86AudioMute", nullptr},

    // Every other key of the standard keymap but the modifiers and the locks, which change
    // state as they are pressed: media, launch and system keys and the extra keys of ISO,
    // Japanese and Korean keyboards. Qt's name for a key shows for these.
    Key{evdevBase + 86, 0, 0x3c, 94, "less", nullptr},
    Key{evdevBase + 90, 0, 0xff26, 98, "Katakana", nullptr},
    Key{evdevBase + 91, 0, 0xff25, 99, "Hiragana", nullptr},
    Key{evdevBase + 92, 0, 0xff23, 100, "Henkan_Mode", nullptr},
    Key{evdevBase + 93, 0, 0xff27, 101, "Hiragana_Katakana", nullptr},
    Key{evdevBase + 94, 0, 0xff22, 102, "Muhenkan", nullptr},
    Key{evdevBase + 99, 0, 0xff61, 107, "Print", nullptr},
    Key{evdevBase + 101, 0, 0xff0a, 109, "Linefeed", nullptr},
    Key{evdevBase + 116, 0, 0x1008ff2a, 124, "XF86PowerOff", nullptr},
    Key{evdevBase + 118, 0, 0xb1, 126, "plusminus", nullptr},
    Key{evdevBase + 119, 0, 0xff13, 127, "Pause", nullptr},
    Key{evdevBase + 120, 0, 0x1008ff4a, 128, "XF86LaunchA", nullptr},
    Key{evdevBase + 121, 0, 0xffae, 129, "KP_Decimal", nullptr},
    Key{evdevBase + 122, 0, 0xff31, 130, "Hangul", nullptr},
    Key{evdevBase + 123, 0, 0xff34, 131, "Hangul_Hanja", nullptr},
    Key{evdevBase + 128, 0, 0xff69, 136, "Cancel", nullptr},
    Key{evdevBase + 129, 0, 0xff66, 137, "Redo", nullptr},
    Key{evdevBase + 130, 0, 0x1005ff70, 138, "SunProps", nullptr},
    Key{evdevBase + 131, 0, 0xff65, 139, "Undo", nullptr},
    Key{evdevBase + 132, 0, 0x1005ff71, 140, "SunFront", nullptr},
    Key{evdevBase + 133, 0, 0x1008ff57, 141, "XF86Copy", nullptr},
    Key{evdevBase + 134, 0, 0x1008ff6b, 142, "XF86Open", nullptr},
    Key{evdevBase + 135, 0, 0x1008ff6d, 143, "XF86Paste", nullptr},
    Key{evdevBase + 136, 0, 0xff68, 144, "Find", nullptr},
    Key{evdevBase + 137, 0, 0x1008ff58, 145, "XF86Cut", nullptr},
    Key{evdevBase + 138, 0, 0xff6a, 146, "Help", nullptr},
    Key{evdevBase + 139, 0, 0x1008ff65, 147, "XF86MenuKB", nullptr},
    Key{evdevBase + 140, 0, 0x1008ff1d, 148, "XF86Calculator", nullptr},
    Key{evdevBase + 142, 0, 0x1008ff2f, 150, "XF86Sleep", nullptr},
    Key{evdevBase + 143, 0, 0x1008ff2b, 151, "XF86WakeUp", nullptr},
    Key{evdevBase + 144, 0, 0x1008ff5d, 152, "XF86Explorer", nullptr},
    Key{evdevBase + 145, 0, 0x1008ff7b, 153, "XF86Send", nullptr},
    Key{evdevBase + 147, 0, 0x1008ff8a, 155, "XF86Xfer", nullptr},
    Key{evdevBase + 148, 0, 0x1008ff41, 156, "XF86Launch1", nullptr},
    Key{evdevBase + 149, 0, 0x1008ff42, 157, "XF86Launch2", nullptr},
    Key{evdevBase + 150, 0, 0x1008ff2e, 158, "XF86WWW", nullptr},
    Key{evdevBase + 151, 0, 0x1008ff5a, 159, "XF86DOS", nullptr},
    Key{evdevBase + 152, 0, 0x1008ff2d, 160, "XF86ScreenSaver", nullptr},
    Key{evdevBase + 153, 0, 0x1008ff74, 161, "XF86RotateWindows", nullptr},
    Key{evdevBase + 154, 0, 0x1008ff7f, 162, "XF86TaskPane", nullptr},
    Key{evdevBase + 155, 0, 0x1008ff19, 163, "XF86Mail", nullptr},
    Key{evdevBase + 156, 0, 0x1008ff30, 164, "XF86Favorites", nullptr},
    Key{evdevBase + 157, 0, 0x1008ff33, 165, "XF86MyComputer", nullptr},
    Key{evdevBase + 158, 0, 0x1008ff26, 166, "XF86Back", nullptr},
    Key{evdevBase + 159, 0, 0x1008ff27, 167, "XF86Forward", nullptr},
    Key{evdevBase + 161, 0, 0x1008ff2c, 169, "XF86Eject", nullptr},
    Key{evdevBase + 162, 0, 0x1008ff2c, 170, "XF86Eject", nullptr},
    Key{evdevBase + 163, 0, 0x1008ff17, 171, "XF86AudioNext", nullptr},
    Key{evdevBase + 164, 0, 0x1008ff14, 172, "XF86AudioPlay", nullptr},
    Key{evdevBase + 165, 0, 0x1008ff16, 173, "XF86AudioPrev", nullptr},
    Key{evdevBase + 166, 0, 0x1008ff15, 174, "XF86AudioStop", nullptr},
    Key{evdevBase + 167, 0, 0x1008ff1c, 175, "XF86AudioRecord", nullptr},
    Key{evdevBase + 168, 0, 0x1008ff3e, 176, "XF86AudioRewind", nullptr},
    Key{evdevBase + 169, 0, 0x1008ff6e, 177, "XF86Phone", nullptr},
    Key{evdevBase + 171, 0, 0x1008ff81, 179, "XF86Tools", nullptr},
    Key{evdevBase + 172, 0, 0x1008ff18, 180, "XF86HomePage", nullptr},
    Key{evdevBase + 173, 0, 0x1008ff73, 181, "XF86Reload", nullptr},
    Key{evdevBase + 174, 0, 0x1008ff56, 182, "XF86Close", nullptr},
    Key{evdevBase + 177, 0, 0x1008ff78, 185, "XF86ScrollUp", nullptr},
    Key{evdevBase + 178, 0, 0x1008ff79, 186, "XF86ScrollDown", nullptr},
    Key{evdevBase + 179, 0, 0x28, 187, "parenleft", nullptr},
    Key{evdevBase + 180, 0, 0x29, 188, "parenright", nullptr},
    Key{evdevBase + 181, 0, 0x1008ff68, 189, "XF86New", nullptr},
    Key{evdevBase + 182, 0, 0xff66, 190, "Redo", nullptr},
    Key{evdevBase + 200, 0, 0x1008ff14, 208, "XF86AudioPlay", nullptr},
    Key{evdevBase + 201, 0, 0x1008ff31, 209, "XF86AudioPause", nullptr},
    Key{evdevBase + 202, 0, 0x1008ff43, 210, "XF86Launch3", nullptr},
    Key{evdevBase + 203, 0, 0x1008ff44, 211, "XF86Launch4", nullptr},
    Key{evdevBase + 204, 0, 0x1008ff4b, 212, "XF86LaunchB", nullptr},
    Key{evdevBase + 205, 0, 0x1008ffa7, 213, "XF86Suspend", nullptr},
    Key{evdevBase + 206, 0, 0x1008ff56, 214, "XF86Close", nullptr},
    Key{evdevBase + 207, 0, 0x1008ff14, 215, "XF86AudioPlay", nullptr},
    Key{evdevBase + 208, 0, 0x1008ff97, 216, "XF86AudioForward", nullptr},
    Key{evdevBase + 210, 0, 0xff61, 218, "Print", nullptr},
    Key{evdevBase + 212, 0, 0x1008ff8f, 220, "XF86WebCam", nullptr},
    Key{evdevBase + 213, 0, 0x1008ffb6, 221, "XF86AudioPreset", nullptr},
    Key{evdevBase + 215, 0, 0x1008ff19, 223, "XF86Mail", nullptr},
    Key{evdevBase + 216, 0, 0x1008ff8e, 224, "XF86Messenger", nullptr},
    Key{evdevBase + 217, 0, 0x1008ff1b, 225, "XF86Search", nullptr},
    Key{evdevBase + 218, 0, 0x1008ff5f, 226, "XF86Go", nullptr},
    Key{evdevBase + 219, 0, 0x1008ff3c, 227, "XF86Finance", nullptr},
    Key{evdevBase + 220, 0, 0x1008ff5e, 228, "XF86Game", nullptr},
    Key{evdevBase + 221, 0, 0x1008ff36, 229, "XF86Shop", nullptr},
    Key{evdevBase + 223, 0, 0xff69, 231, "Cancel", nullptr},
    Key{evdevBase + 224, 0, 0x1008ff03, 232, "XF86MonBrightnessDown", nullptr},
    Key{evdevBase + 225, 0, 0x1008ff02, 233, "XF86MonBrightnessUp", nullptr},
    Key{evdevBase + 226, 0, 0x1008ff32, 234, "XF86AudioMedia", nullptr},
    Key{evdevBase + 227, 0, 0x1008ff59, 235, "XF86Display", nullptr},
    Key{evdevBase + 228, 0, 0x1008ff04, 236, "XF86KbdLightOnOff", nullptr},
    Key{evdevBase + 229, 0, 0x1008ff06, 237, "XF86KbdBrightnessDown", nullptr},
    Key{evdevBase + 230, 0, 0x1008ff05, 238, "XF86KbdBrightnessUp", nullptr},
    Key{evdevBase + 231, 0, 0x1008ff7b, 239, "XF86Send", nullptr},
    Key{evdevBase + 232, 0, 0x1008ff72, 240, "XF86Reply", nullptr},
    Key{evdevBase + 233, 0, 0x1008ff90, 241, "XF86MailForward", nullptr},
    Key{evdevBase + 234, 0, 0x1008ff77, 242, "XF86Save", nullptr},
    Key{evdevBase + 235, 0, 0x1008ff5b, 243, "XF86Documents", nullptr},
    Key{evdevBase + 236, 0, 0x1008ff93, 244, "XF86Battery", nullptr},
    Key{evdevBase + 237, 0, 0x1008ff94, 245, "XF86Bluetooth", nullptr},
    Key{evdevBase + 238, 0, 0x1008ff95, 246, "XF86WLAN", nullptr},
    Key{evdevBase + 239, 0, 0x1008ff96, 247, "XF86UWB", nullptr},
    Key{evdevBase + 241, 0, 0x1008fe22, 249, "XF86Next_VMode", nullptr},
    Key{evdevBase + 242, 0, 0x1008fe23, 250, "XF86Prev_VMode", nullptr},
    Key{evdevBase + 243, 0, 0x1008ff07, 251, "XF86MonBrightnessCycle", nullptr},
    Key{evdevBase + 244, 0, 0x100810f4, 252, "XF86BrightnessAuto", nullptr},
    Key{evdevBase + 245, 0, 0x100810f5, 253, "XF86DisplayOff", nullptr},
    Key{evdevBase + 246, 0, 0x1008ffb4, 254, "XF86WWAN", nullptr},
    Key{evdevBase + 247, 0, 0x1008ffb5, 255, "XF86RFKill", nullptr},
};
// clang-format on

template<typename Match> const Key *find(Match match)
{
    for (const Key &key : keys) {
        if (match(key))
            return &key;
    }
    return nullptr;
}

const Key *byKeyCode(qint64 keyCode)
{
    return find([keyCode](const Key &key) { return key.keyCode == keyCode; });
}

// Fixed display order: control, option, shift, command.
struct Modifier {
    qint64 flag;
    const char *word;
    const char *portalName;
};
// The words are translated as the desktops write them in each language (German "Strg").
constexpr std::array modifierOrder {
    //: The Control key in a keyboard shortcut, as the desktop names it ("Strg" in German)
    Modifier { controlFlag, QT_TRANSLATE_NOOP("KeyCodes", "Ctrl"), "CTRL" },
    //: The Alt key in a keyboard shortcut, as the desktop names it
    Modifier { optionFlag, QT_TRANSLATE_NOOP("KeyCodes", "Alt"), "ALT" },
    //: The Shift key in a keyboard shortcut, as the desktop names it ("Umschalt" in German)
    Modifier { shiftFlag, QT_TRANSLATE_NOOP("KeyCodes", "Shift"), "SHIFT" },
    //: The Super (logo) key in a keyboard shortcut, as the desktop names it
    Modifier { commandFlag, QT_TRANSLATE_NOOP("KeyCodes", "Super"), "LOGO" },
};

} // namespace

bool isShortcutSet(qint64 keyCode, qint64 modifiers)
{
    return keyCode >= 0 && keyCode <= qint64(std::numeric_limits<quint32>::max()) && modifiers >= 0;
}

std::optional<int> qtKeyForKeyCode(qint64 keyCode)
{
    if (const Key *key = byKeyCode(keyCode); key && key->qtKey != 0)
        return key->qtKey;
    return std::nullopt;
}

std::optional<int> keyCodeForQtKey(int qtKey)
{
    if (qtKey == 0)
        return std::nullopt;
    if (const Key *key = find([qtKey](const Key &k) { return k.qtKey == qtKey; }))
        return key->keyCode;
    return std::nullopt;
}

std::optional<quint32> keysymForKeyCode(qint64 keyCode)
{
    if (const Key *key = byKeyCode(keyCode))
        return key->keysym;
    return std::nullopt;
}

std::optional<int> keyCodeForKeysym(quint32 keysym)
{
    // Upper-case Latin letters (what Shift types) name the same key.
    if (keysym >= 0x41 && keysym <= 0x5a)
        keysym += 0x20;
    if (const Key *key = find([keysym](const Key &k) { return k.keysym == keysym; }))
        return key->keyCode;
    return std::nullopt;
}

std::optional<int> keyCodeForXKeycode(quint32 xKeycode)
{
    if (const Key *key = find([xKeycode](const Key &k) { return k.xKeycode == xKeycode; }))
        return key->keyCode;
    return std::nullopt;
}

std::optional<quint32> xKeycodeForKeyCode(qint64 keyCode)
{
    if (const Key *key = byKeyCode(keyCode))
        return key->xKeycode;
    return std::nullopt;
}

QString keysymNameForKeyCode(qint64 keyCode)
{
    const Key *key = byKeyCode(keyCode);
    return key ? QString::fromLatin1(key->keysymName) : QString();
}

QString keyNameForKeyCode(qint64 keyCode)
{
    const Key *key = byKeyCode(keyCode);
    return key && key->name ? QString::fromUtf8(key->name) : QString();
}

quint16 x11Modifiers(qint64 storedModifiers, const X11ModifierBits &bits)
{
    quint16 mask = 0;
    if (storedModifiers & shiftFlag)
        mask |= bits.shift;
    if (storedModifiers & controlFlag)
        mask |= bits.control;
    if (storedModifiers & optionFlag)
        mask |= bits.alt;
    if (storedModifiers & commandFlag)
        mask |= bits.super;
    return mask;
}

Qt::KeyboardModifiers qtModifiers(qint64 storedModifiers)
{
    Qt::KeyboardModifiers result;
    result.setFlag(Qt::ShiftModifier, storedModifiers & shiftFlag);
    result.setFlag(Qt::ControlModifier, storedModifiers & controlFlag);
    result.setFlag(Qt::AltModifier, storedModifiers & optionFlag);
    result.setFlag(Qt::MetaModifier, storedModifiers & commandFlag);
    return result;
}

qint64 storedModifiersForQt(Qt::KeyboardModifiers modifiers)
{
    qint64 result = 0;
    if (modifiers & Qt::ShiftModifier)
        result |= shiftFlag;
    if (modifiers & Qt::ControlModifier)
        result |= controlFlag;
    if (modifiers & Qt::AltModifier)
        result |= optionFlag;
    if (modifiers & Qt::MetaModifier)
        result |= commandFlag;
    return result;
}

QString portalTrigger(qint64 keyCode, qint64 modifiers)
{
    const QString keyName = keysymNameForKeyCode(keyCode);
    if (keyName.isEmpty() || !isShortcutSet(keyCode, modifiers))
        return {};
    QStringList parts;
    for (const Modifier &modifier : modifierOrder) {
        if (modifiers & modifier.flag)
            parts << QLatin1String(modifier.portalName);
    }
    parts << keyName;
    return parts.join(QLatin1Char('+'));
}

QString shortcutDesktopText(qint64 modifiers, const QString &keyChar)
{
    // Empty when there is nothing to show: no key text, or negative modifiers (no shortcut).
    if (keyChar.isEmpty() || modifiers < 0)
        return {};
    // Desktops list Ctrl, Alt, Shift, Super in this order too (GNOME, KDE).
    QStringList parts;
    for (const Modifier &modifier : modifierOrder) {
        if (modifiers & modifier.flag)
            parts << QCoreApplication::translate("KeyCodes", modifier.word);
    }
    parts << keyChar;
    return parts.join(QLatin1Char('+'));
}

} // namespace KeyCodes
