// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/HotkeyManager.h"

#include "services/Preferences.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Preferences;

namespace {

struct Fixture {
    Fixture()
        : manager(*settings.store, backend)
    {
        pickShortcut.write(*settings.store, { 8, 655360 });
        popoverShortcut.write(*settings.store, { 7, 655360 });
    }

    TempSettings settings;
    FakeShortcutBackend backend;
    HotkeyManager manager;
};

} // namespace

TEST(HotkeyManager, ReregisterReleasesBothThenRegistersPickBeforePopover)
{
    Fixture f;
    f.manager.reregisterAll();
    pickShortcut.write(*f.settings.store, { 9, 262144 });
    f.manager.reregisterAll();
    EXPECT_EQ(f.backend.calls,
        QStringList({ "register 1 8 655360", "register 2 7 655360", "unregister 1", "unregister 2",
            "register 1 9 262144", "register 2 7 655360" }));
}

TEST(HotkeyManager, UnsetOrUnregistrableShortcutsRegisterNothing)
{
    const StoredShortcut bad[] = { { -1, 655360 }, { 4294967296LL, 655360 }, { 7, -1 } }; // unset, > 32 bits
    for (const StoredShortcut &popover : bad) {
        Fixture f;
        popoverShortcut.write(*f.settings.store, popover);
        f.manager.reregisterAll();
        EXPECT_EQ(f.backend.calls, QStringList({ "register 1 8 655360" })) << popover.keyCode;
    }
}

TEST(HotkeyManager, PressesBecomeSignalsOnlyOnceTheHandlerIsInstalled)
{
    Fixture f;
    QSignalSpy pick(&f.manager, &HotkeyManager::pickHotkeyFired);
    QSignalSpy popover(&f.manager, &HotkeyManager::popoverHotkeyFired);
    f.backend.press(1);
    EXPECT_EQ(pick.count(), 0);

    f.manager.installEventHandler();
    f.manager.installEventHandler(); // a second install must not double the signals
    f.backend.press(1);
    f.backend.press(2);
    f.backend.press(3);
    EXPECT_EQ(pick.count(), 1);
    EXPECT_EQ(popover.count(), 1);
}
