// SPDX-License-Identifier: GPL-3.0-or-later
// Global shortcuts on a real X server (run inside tests/desktop/x11-session.sh): real grabs,
// real key presses from xdotool through the XTest extension.
#include "platform/x11/XcbShortcutBackend.h"
#include "hotkeys/HotkeyManager.h"
#include "hotkeys/KeyCodes.h"
#include "services/Preferences.h"
#include "support/TempSettings.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace {

QStringList g_messages; // what Qt reports, an X error from a bad grab among them

void xdotool(const char *arguments)
{
    EXPECT_EQ(QProcess::execute(QStringLiteral("xdotool"), QString::fromLatin1(arguments).split(u' ')), 0)
        << arguments;
}

class XcbShortcuts : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariable("QT_QPA_PLATFORM") != QLatin1String("xcb"))
            GTEST_SKIP() << "needs a real X server (tests/desktop/x11-session.sh)";
        backend = XcbShortcutBackend::create();
        ASSERT_NE(backend, nullptr);
        manager = std::make_unique<HotkeyManager>(*settings.store, *backend);
        manager->installEventHandler();
        Preferences::pickShortcut.write(*settings.store, { 8, 655360 }); // Alt+Shift+C
        Preferences::popoverShortcut.write(*settings.store, { 7, 655360 }); // Alt+Shift+X
        manager->reregisterAll();
        pick = std::make_unique<QSignalSpy>(manager.get(), &HotkeyManager::pickHotkeyFired);
        popover = std::make_unique<QSignalSpy>(manager.get(), &HotkeyManager::popoverHotkeyFired);
        g_messages.clear();
        previousHandler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) { g_messages << message; });
    }
    void TearDown() override
    {
        qInstallMessageHandler(previousHandler);
        if (manager)
            manager->unregisterAll();
        EXPECT_EQ(g_messages, QStringList()) << "nothing is reported";
    }

    // Presses `chord`, then a marker chord on the popover shortcut, and waits for the marker:
    // X delivers events in order, so by then every effect of `chord` has arrived.
    void pressThenMarker()
    {
        const int before = popover->count();
        xdotool("key --clearmodifiers alt+shift+c alt+shift+x");
        ASSERT_TRUE(QTest::qWaitFor([&] { return popover->count() > before; }, 10000)) << "no marker";
    }

    TempSettings settings;
    std::unique_ptr<XcbShortcutBackend> backend;
    std::unique_ptr<HotkeyManager> manager;
    std::unique_ptr<QSignalSpy> pick;
    std::unique_ptr<QSignalSpy> popover;
    QtMessageHandler previousHandler = nullptr;
};

} // namespace

TEST_F(XcbShortcuts, PickFiresOnceWhateverLockIsOn)
{
    for (const char *lock : { "key Num_Lock", "key Caps_Lock", "key Num_Lock Caps_Lock" }) {
        SCOPED_TRACE(lock);
        xdotool(lock);
        pick->clear();
        pressThenMarker();
        xdotool(lock); // off again
        EXPECT_EQ(pick->count(), 1);
    }
}

TEST_F(XcbShortcuts, HeldKeyFiresOnceThroughAutoRepeat)
{
    // Held a second and a half, as a hand holds it, at the server's own repeat rate (Xvfb
    // repeats after 660 ms at 25 a second): a stream of presses without releases.
    xdotool("keydown alt+shift+c");
    ASSERT_TRUE(QTest::qWaitFor([&] { return pick->count() > 0; }, 10000));
    QTest::qWait(1500); // the hold itself, not a wait for something to happen
    xdotool("keyup alt+shift+c");
    pressThenMarker();
    EXPECT_EQ(pick->count(), 2) << "one for the held press, one for the next press";
}

// A person holds a key 80-120 ms, and Vantle answers the press at once with a window that takes
// the keyboard (the loupe), so the release goes there, or, when that grab ends while the key
// is still down, to whichever program has the focus. Every press of a series must fire.
TEST_F(XcbShortcuts, EveryPressOfASeriesFiresWhereverTheReleaseGoes)
{
    struct Case {
        const char *name;
        int grabMs; // how long our window keeps the keyboard after each press; -1: it takes none
    };
    const Case cases[] = { { "nothing takes the keyboard", -1 }, { "the loupe outlasts the release", 400 },
        { "the loupe ends before the release", 20 } };
    QWindow taker; // stands in for the loupe and the popup: a window of ours that takes the keyboard
    taker.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    taker.setGeometry(0, 0, 1, 1);
    taker.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&taker));
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        int grabs = 0;
        const auto answer = QObject::connect(manager.get(), &HotkeyManager::pickHotkeyFired, [&] {
            if (c.grabMs >= 0 && taker.setKeyboardGrabEnabled(true) && ++grabs)
                QTimer::singleShot(c.grabMs, [&] { taker.setKeyboardGrabEnabled(false); });
        });
        pick->clear();
        for (int press = 1; press <= 6; ++press) {
            xdotool("key --delay 80 alt+shift+c");
            ASSERT_TRUE(QTest::qWaitFor([&] { return pick->count() >= press; }, 3000))
                << "press " << press << " was lost";
            QTest::qWait(std::max(c.grabMs, 0) + 50);
        }
        QObject::disconnect(answer);
        EXPECT_EQ(std::pair(int(pick->count()), grabs), std::pair(6, c.grabMs >= 0 ? 6 : 0));
    }
}

TEST_F(XcbShortcuts, EveryRecordableKeyIsGrabbedOnItself)
{
    // The recorder stores the physical key; the grab goes by keysym. A key whose keysym the
    // server's keymap puts elsewhere could be recorded and never fire.
    int keys = 0;
    for (int code = 0; code < 0x200; ++code) {
        const std::optional<quint32> xKeycode = KeyCodes::xKeycodeForKeyCode(code);
        if (!xKeycode)
            continue;
        ++keys;
        EXPECT_TRUE(backend->keycodesForKey(code).contains(xcb_keycode_t(*xKeycode))) << code;
    }
    EXPECT_GT(keys, 200);
}

TEST_F(XcbShortcuts, KeyboardMappingChangeGrabsAgain)
{
    const auto keymap = [](const char *key54, const char *key29) {
        QProcess::execute(QStringLiteral("xmodmap"),
            { QStringLiteral("-e"), QLatin1String("keycode 54 = ") + QLatin1String(key54),
                QStringLiteral("-e"), QLatin1String("keycode 29 = ") + QLatin1String(key29) });
    };
    keymap("y Y", "c C"); // the keysym c on another key, as a layout switch does
    const int before = pick->count();
    // xdotool types by keysym: "c" now sits on key code 29.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            xdotool("key --clearmodifiers alt+shift+c");
            return QTest::qWaitFor([&] { return pick->count() > before; }, 500);
        },
        10000));
    keymap("c C", "y Y");
}
