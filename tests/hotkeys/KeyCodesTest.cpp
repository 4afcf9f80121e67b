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
