// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/KeyCodes.h"

#include <gtest/gtest.h>

using namespace KeyCodes;

TEST(KeyCodes, EveryKeyConvertsBothWaysThroughEachPlatformForm)
{
    int count = 0;
    for (int code = 0; code < 0x200; ++code) {
        const auto xKeycode = xKeycodeForKeyCode(code);
        if (!xKeycode)
            continue;
        ++count;
        SCOPED_TRACE(code);
        if (const auto qtKey = qtKeyForKeyCode(code)) {
            EXPECT_EQ(keyCodeForQtKey(*qtKey), code);
        }
        // Keys the keymap gives one keysym (Print, the second Play key, ...) share its grab.
        EXPECT_EQ(keysymForKeyCode(*keyCodeForKeysym(*keysymForKeyCode(code))), keysymForKeyCode(code));
        EXPECT_EQ(keyCodeForXKeycode(*xKeycode), code);
        EXPECT_FALSE(keysymNameForKeyCode(code).isEmpty());
    }
    EXPECT_GT(count, 200);
}

TEST(KeyCodes, KnownKeysSitWhereTheStoredValuesExpectThem)
{
    struct Row {
        int keyCode;
        std::optional<int> qtKey;
        quint32 keysym;
        quint32 xKeycode;
    };
    const Row rows[] = {
        { 8, Qt::Key_C, 0x63, 54 }, // the default pick shortcut
        { 7, Qt::Key_X, 0x78, 53 }, // the default popover shortcut
        { 53, Qt::Key_Escape, 0xff1b, 9 }, // cancels recording
        { 105, Qt::Key_F13, 0x1008ff81, 191 }, // the standard keymap's XF86Tools
        { 83, QKeyCombination(Qt::KeypadModifier, Qt::Key_1).toCombined(), 0xffb1, 87 },
        { 0x100 + 164, std::nullopt, 0x1008ff14, 172 }, // Play: its Linux input event code
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
        { 655360, 0x08 | 0x01, Qt::AltModifier | Qt::ShiftModifier },
        { 1048576 | 524288 | 262144, 0x40 | 0x08 | 0x04,
            Qt::MetaModifier | Qt::AltModifier | Qt::ControlModifier },
        { 655360 | 65536 | 8388608, 0x08 | 0x01, Qt::AltModifier | Qt::ShiftModifier }, // caps lock, function
        { 65536, 0, Qt::NoModifier },
        { 0, 0, Qt::NoModifier },
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.stored);
        EXPECT_EQ(x11Modifiers(row.stored), row.x11);
        EXPECT_EQ(qtModifiers(row.stored), row.qt);
    }
    EXPECT_EQ(x11Modifiers(commandFlag | optionFlag, { 0x01, 0x04, 0x20, 0x10 }), 0x30)
        << "Alt and Super follow the server's modifier mapping";
    EXPECT_EQ(storedModifiersForQt(Qt::AltModifier | Qt::ShiftModifier | Qt::KeypadModifier), 655360);
    EXPECT_EQ(storedModifiersForQt(Qt::MetaModifier | Qt::GroupSwitchModifier), commandFlag);
}

TEST(KeyCodes, PortalTriggerUsesTheDesktopNotation)
{
    EXPECT_EQ(portalTrigger(8, 655360), QStringLiteral("ALT+SHIFT+c"));
    EXPECT_EQ(portalTrigger(122, controlFlag | commandFlag), QStringLiteral("CTRL+LOGO+F1"));
    EXPECT_EQ(portalTrigger(33, optionFlag), QStringLiteral("ALT+bracketleft"));
    EXPECT_EQ(portalTrigger(10, optionFlag), QString()) << "a key outside the table has no trigger";
    EXPECT_EQ(portalTrigger(8, -1), QString());
}
