#include "hotkeys/KeyCodes.h"

#include <QStringList>
#include <array>
#include <limits>

namespace KeyCodes {
namespace {

struct Key {
    int keyCode;      // stored (Mac virtual key code)
    int qtKey;        // Qt::Key
    quint32 keysym;   // X keysym of the US layout
    quint32 xKeycode; // evdev X key code: the physical key
    const char *keysymName;
    const char *name; // shown for keys that type no character
};

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
    Key{105, Qt::Key_F13, 0xffca, 191, "F13", "F13"}, Key{107, Qt::Key_F14, 0xffcb, 192, "F14", "F14"},
    Key{113, Qt::Key_F15, 0xffcc, 193, "F15", "F15"}, Key{106, Qt::Key_F16, 0xffcd, 194, "F16", "F16"},
    Key{64, Qt::Key_F17, 0xffce, 195, "F17", "F17"},  Key{79, Qt::Key_F18, 0xffcf, 196, "F18", "F18"},
    Key{80, Qt::Key_F19, 0xffd0, 197, "F19", "F19"},  Key{90, Qt::Key_F20, 0xffd1, 198, "F20", "F20"},
};
// clang-format on

template <typename Match> const Key *find(Match match)
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
constexpr std::array modifierOrder {
    Modifier { controlFlag, "Ctrl", "CTRL" },
    Modifier { optionFlag, "Alt", "ALT" },
    Modifier { shiftFlag, "Shift", "SHIFT" },
    Modifier { commandFlag, "Super", "LOGO" },
};

} // namespace

bool isShortcutSet(qint64 keyCode, qint64 modifiers)
{
    return keyCode >= 0 && keyCode <= qint64(std::numeric_limits<quint32>::max()) && modifiers >= 0;
}

std::optional<int> qtKeyForKeyCode(qint64 keyCode)
{
    if (const Key *key = byKeyCode(keyCode))
        return key->qtKey;
    return std::nullopt;
}

std::optional<int> keyCodeForQtKey(int qtKey)
{
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
            parts << QLatin1String(modifier.word);
    }
    parts << keyChar;
    return parts.join(QLatin1Char('+'));
}

} // namespace KeyCodes
