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
#include <QtGui/qguiapplication_platform.h>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace {

QStringList g_messages;

void collectMessages(QtMsgType, const QMessageLogContext &, const QString &message)
{
    g_messages << message;
}

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
        previousHandler = qInstallMessageHandler(collectMessages);
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

// Stands in for the loupe and the popup: a window of ours that takes the keyboard.
class KeyboardTaker {
public:
    KeyboardTaker()
        : m_connection(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection())
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_window = xcb_generate_id(m_connection);
        const uint32_t values[] = { 1, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE };
        xcb_create_window(m_connection, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(m_connection, m_window);
        xcb_flush(m_connection);
    }
    ~KeyboardTaker()
    {
        release();
        xcb_destroy_window(m_connection, m_window);
        xcb_flush(m_connection);
    }
    bool take()
    {
        xcb_grab_keyboard_reply_t *reply = xcb_grab_keyboard_reply(m_connection,
            xcb_grab_keyboard(
                m_connection, 0, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr);
        const bool taken = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
        std::free(reply);
        return taken;
    }
    void release()
    {
        xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
};

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
    KeyboardTaker taker;
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const auto answer = QObject::connect(manager.get(), &HotkeyManager::pickHotkeyFired, [&] {
            if (c.grabMs >= 0 && taker.take())
                QTimer::singleShot(c.grabMs, [&] { taker.release(); });
        });
        pick->clear();
        for (int press = 1; press <= 6; ++press) {
            xdotool("key --delay 80 alt+shift+c");
            ASSERT_TRUE(QTest::qWaitFor([&] { return pick->count() >= press; }, 3000))
                << "press " << press << " was lost";
            QTest::qWait(std::max(c.grabMs, 0) + 50);
        }
        QObject::disconnect(answer);
        EXPECT_EQ(pick->count(), 6);
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
