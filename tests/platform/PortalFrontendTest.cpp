// SPDX-License-Identifier: GPL-3.0-or-later
// Our portal clients against the real xdg-desktop-portal frontend, with the test backend behind
// it, all on a private session bus (the test runs under dbus-run-session).
#include "TestPortalBackend.h"
#include "hotkeys/HotkeyManager.h"
#include "platform/portal/PortalScreenSampler.h"
#include "platform/portal/PortalShortcutBackend.h"
#include "services/PreferenceKeys.h"
#include "support/TempSettings.h"

#include <QDBusConnectionInterface>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace PreferenceKeys;

namespace {

const QString frontendProgram = QStringLiteral("/usr/libexec/xdg-desktop-portal");
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");

// The frontend, started for one test with only our backend to find.
class PortalFrontend {
public:
    ~PortalFrontend()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished(5000);
    }

    // Empty on success, else why the frontend is not there.
    QString start()
    {
        if (!QFile::exists(frontendProgram))
            return QStringLiteral("xdg-desktop-portal is not installed");
        QFile file(m_dir.filePath(QStringLiteral("vantletest.portal")));
        if (!file.open(QIODevice::WriteOnly) || file.write(TestPortalBackend::portalFile()) < 0)
            return QStringLiteral("cannot write the .portal file");
        file.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DESKTOP_PORTAL_DIR"), m_dir.path());
        environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), TestPortalBackend::desktopName);
        environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(frontendProgram, { QStringLiteral("--replace") });
        if (!m_process.waitForStarted(10000))
            return QStringLiteral("xdg-desktop-portal did not start");
        // Ours, not one the bus might start on its own.
        QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
        const bool isOwner = QTest::qWaitFor(
            [&] { return bus->servicePid(portalService).value() == uint(m_process.processId()); }, 20000);
        return isOwner ? QString() : QStringLiteral("xdg-desktop-portal did not take its bus name");
    }

private:
    QTemporaryDir m_dir;
    QProcess m_process;
};

struct Desktop {
    QDBusConnection backendBus
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("vantletest-backend"));
    TestPortalBackend backend { backendBus };
    PortalFrontend frontend;
};

#define START_DESKTOP(desktop)                                                                               \
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";                \
    ASSERT_TRUE(desktop.backend.isRegistered());                                                             \
    if (const QString why = desktop.frontend.start(); !why.isEmpty())                                        \
        GTEST_SKIP() << qPrintable(why);

QString property(const TestPortalShortcut &shortcut, const char *name)
{
    return shortcut.properties.value(QLatin1String(name)).toString();
}

} // namespace

TEST(PortalFrontend, PickColorBringsTheComponentsUnrounded)
{
    Desktop desktop;
    START_DESKTOP(desktop)
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    struct Case {
        uint response;
        bool picks;
        const char *what;
    } cases[] = { { 0, true, "picked" }, { 1, false, "cancelled" }, { 2, false, "failed" },
        { 0, true, "picked again" } };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        desktop.backend.pickResponse = c.response;
        int calls = 0;
        std::optional<SampledColor> color;
        sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> result) {
            ++calls;
            color = result;
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, 15000));
        QTest::qWait(50); // room for a second, wrong completion
        EXPECT_EQ(calls, 1);
        ASSERT_EQ(color.has_value(), c.picks);
        if (c.picks) {
            EXPECT_EQ(color->red, 0.9999);
            EXPECT_EQ(color->green, 0.5);
            EXPECT_EQ(color->blue, 0.00196);
        }
    }
    EXPECT_EQ(desktop.backend.picks, 4);
}

TEST(PortalFrontend, ShortcutsAreBoundInOneSessionAndFire)
{
    // Made first, in a process of its own (see CMakeLists.txt): our program subscribes before
    // anything has used QDBusObjectPath, and before the portal is on the bus.
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";
    auto backend = std::make_unique<PortalShortcutBackend>(QDBusConnection::sessionBus());
    Desktop desktop;
    START_DESKTOP(desktop)
    TempSettings settings;
    settings.store->setInteger(pickKeyCode, 8);
    settings.store->setInteger(pickModifiers, 655360);
    settings.store->setInteger(popoverKeyCode, 7);
    settings.store->setInteger(popoverModifiers, 655360 | 65536); // caps lock bit ignored
    HotkeyManager manager(*settings.store, *backend);
    manager.installEventHandler();
    QSignalSpy pick(&manager, &HotkeyManager::pickHotkeyFired);
    QSignalSpy popover(&manager, &HotkeyManager::popoverHotkeyFired);

    manager.reregisterAll();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !desktop.backend.binds.isEmpty(); }, 15000));
    ASSERT_EQ(desktop.backend.sessions.size(), 1);
    const QString session = desktop.backend.sessions.first();
    // The frontend makes its own session object and hands our client that path, not the backend's.
    ASSERT_TRUE(QTest::qWaitFor([&] { return !backend->sessionHandle().isEmpty(); }, 15000));
    EXPECT_EQ(desktop.backend.boundSessions, QStringList { session });
    const QList<TestPortalShortcut> &bound = desktop.backend.binds.first();
    ASSERT_EQ(bound.size(), 2);
    EXPECT_EQ(bound[0].id, u"pick");
    EXPECT_EQ(property(bound[0], "description"), u"Pick a color");
    EXPECT_EQ(property(bound[0], "preferred_trigger"), u"ALT+SHIFT+c");
    EXPECT_EQ(bound[1].id, u"popover");
    EXPECT_EQ(property(bound[1], "description"), u"Show or hide Vantle");
    EXPECT_EQ(property(bound[1], "preferred_trigger"), u"ALT+SHIFT+x");

    // Presses in another program's session never reach us; ours do, each exactly once.
    desktop.backend.activate(
        desktop.backend.path + QStringLiteral("/session/1_99/other"), QStringLiteral("pick"));
    desktop.backend.activate(session, QStringLiteral("popover"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return popover.count() == 1; }, 15000));
    desktop.backend.activate(session, QStringLiteral("pick"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return pick.count() == 1; }, 15000));
    QTest::qWait(50);
    EXPECT_EQ(pick.count(), 1);
    EXPECT_EQ(popover.count(), 1);

    // A change of shortcut reaches the desktop, and the new set fires.
    settings.store->setInteger(pickModifiers, 262144 | 1048576);
    settings.store->setInteger(popoverKeyCode, -1);
    manager.reregisterAll();
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.backend.binds.size() == 2; }, 15000));
    QTest::qWait(100); // room for a wrongly doubled bind
    ASSERT_EQ(desktop.backend.binds.size(), 2);
    ASSERT_EQ(desktop.backend.binds[1].size(), 1);
    EXPECT_EQ(property(desktop.backend.binds[1][0], "preferred_trigger"), u"CTRL+LOGO+c");
    const QString current = desktop.backend.boundSessions.last();
    desktop.backend.activate(current, QStringLiteral("pick"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return pick.count() == 2; }, 15000));

    // Quitting closes the session at the desktop.
    backend.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.backend.closedSessions.contains(current); }, 15000));
}
