#include "hotkeys/KeyCodes.h"

#include <gtest/gtest.h>

using namespace KeyCodes;

TEST(KeyCodes, EveryKeyConvertsBothWaysThroughEachPlatformForm)
{
    int count = 0;
    for (int code = 0; code < 128; ++code) {
        const auto qtKey = qtKeyForKeyCode(code);
        if (!qtKey)
            continue;
        ++count;
        SCOPED_TRACE(code);
        EXPECT_EQ(keyCodeForQtKey(*qtKey), code);
        EXPECT_EQ(keyCodeForKeysym(*keysymForKeyCode(code)), code);
        EXPECT_EQ(keyCodeForXKeycode(*xKeycodeForKeyCode(code)), code);
        EXPECT_FALSE(keysymNameForKeyCode(code).isEmpty());
    }
    // 26 letters, 10 digits, 11 punctuation keys, 14 named keys, F1-F20.
    EXPECT_EQ(count, 26 + 10 + 11 + 14 + 20);
}

TEST(KeyCodes, KnownKeysSitWhereTheStoredValuesExpectThem)
{
    struct Row {
        int keyCode;
        int qtKey;
        quint32 keysym;
        quint32 xKeycode;
    };
    const Row rows[] = {
        {8, Qt::Key_C, 0x63, 54},         // the default pick shortcut
        {7, Qt::Key_X, 0x78, 53},         // the default popover shortcut
        {53, Qt::Key_Escape, 0xff1b, 9},  // cancels recording
        {18, Qt::Key_1, 0x31, 10},
        {29, Qt::Key_0, 0x30, 19},
        {51, Qt::Key_Backspace, 0xff08, 22},
        {117, Qt::Key_Delete, 0xffff, 119},
        {122, Qt::Key_F1, 0xffbe, 67},
        {90, Qt::Key_F20, 0xffd1, 198},
        {50, Qt::Key_QuoteLeft, 0x60, 49},
        {126, Qt::Key_Up, 0xff52, 111},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.keyCode);
        EXPECT_EQ(qtKeyForKeyCode(row.keyCode), row.qtKey);
        EXPECT_EQ(keysymForKeyCode(row.keyCode), row.keysym);
        EXPECT_EQ(xKeycodeForKeyCode(row.keyCode), row.xKeycode);
    }
    EXPECT_EQ(keyCodeForKeysym(0x43), 8) << "Shift's upper-case keysym names the same key";
    EXPECT_EQ(keyCodeForXKeycode(50), std::nullopt) << "Shift itself is not a shortcut key";
    EXPECT_EQ(qtKeyForKeyCode(10), std::nullopt) << "the ISO section key is not in the table";
}

TEST(KeyCodes, OnlyTheFourStoredBitsBecomePlatformModifiers)
{
    struct Row {
        qint64 stored;
        quint16 x11;
        Qt::KeyboardModifiers qt;
    };
    const Row rows[] = {
        {655360, 0x08 | 0x01, Qt::AltModifier | Qt::ShiftModifier},
        {1048576 | 524288 | 262144, 0x40 | 0x08 | 0x04, Qt::MetaModifier | Qt::AltModifier | Qt::ControlModifier},
        {655360 | 65536 | 8388608, 0x08 | 0x01, Qt::AltModifier | Qt::ShiftModifier}, // caps lock, function
        {65536, 0, Qt::NoModifier},
        {0, 0, Qt::NoModifier},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.stored);
        EXPECT_EQ(x11Modifiers(row.stored), row.x11);
        EXPECT_EQ(qtModifiers(row.stored), row.qt);
    }
    EXPECT_EQ(x11Modifiers(commandFlag | optionFlag, {0x01, 0x04, 0x20, 0x10}), 0x30)
        << "Alt and Super follow the server's modifier mapping";
    EXPECT_EQ(storedModifiersForQt(Qt::AltModifier | Qt::ShiftModifier | Qt::KeypadModifier), 655360);
    EXPECT_EQ(storedModifiersForQt(Qt::MetaModifier | Qt::GroupSwitchModifier), commandFlag);
}

TEST(KeyCodes, StoredValuesOutsideTheirRangeMeanNoShortcut)
{
    EXPECT_TRUE(isShortcutSet(0, 0));
    EXPECT_TRUE(isShortcutSet(4294967295LL, 655360));
    EXPECT_FALSE(isShortcutSet(-1, 655360));
    EXPECT_FALSE(isShortcutSet(4294967296LL, 655360));
    EXPECT_FALSE(isShortcutSet(8, -1));
}

TEST(KeyCodes, TextsListModifiersInTheFixedOrder)
{
    struct Row {
        qint64 modifiers;
        QString keyChar;
        QString text;
    };
    const Row rows[] = {
        { 655360, QStringLiteral("C"), QStringLiteral("Alt+Shift+C") },
        { allFlags, QStringLiteral("X"), QStringLiteral("Ctrl+Alt+Shift+Super+X") },
        { commandFlag, QStringLiteral("1"), QStringLiteral("Super+1") },
        { 655360 | 65536, QStringLiteral("K"), QStringLiteral("Alt+Shift+K") },
        { 655360, QString(), QString() },
        { -1, QStringLiteral("C"), QString() },
    };
    for (const Row &row : rows)
        EXPECT_EQ(shortcutDesktopText(row.modifiers, row.keyChar), row.text) << row.modifiers;
}

TEST(KeyCodes, PortalTriggerUsesTheDesktopNotation)
{
    EXPECT_EQ(portalTrigger(8, 655360), QStringLiteral("ALT+SHIFT+c"));
    EXPECT_EQ(portalTrigger(122, controlFlag | commandFlag), QStringLiteral("CTRL+LOGO+F1"));
    EXPECT_EQ(portalTrigger(33, optionFlag), QStringLiteral("ALT+bracketleft"));
    EXPECT_EQ(portalTrigger(10, optionFlag), QString()) << "a key outside the table has no trigger";
    EXPECT_EQ(portalTrigger(8, -1), QString());
}
