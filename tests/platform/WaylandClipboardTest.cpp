// SPDX-License-Identifier: GPL-3.0-or-later
// The data-control clipboard in headless sway (tests/desktop/sway-session.sh), where no surface
// ever has the keyboard, as for a tray program after a global shortcut; wl-paste reads it.
#include "platform/DesktopSession.h"
#include "platform/QtClipboard.h"
#include "platform/wayland/WaylandDataControlClipboard.h"

#include <QAbstractEventDispatcher>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Runs a command to its end while our event loop keeps serving the selection (a blocking wait
// would starve it); its output, or "hung" when it never ended.
QByteArray run(const QString &command)
{
    QProcess process;
    process.start(QStringLiteral("sh"), { QStringLiteral("-c"), command });
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000)) {
        process.kill();
        process.waitForFinished(5000);
        return "hung";
    }
    return process.readAllStandardOutput();
}

QByteArray paste(const QString &mimeType = QStringLiteral("text/plain;charset=utf-8"))
{
    return run(QStringLiteral("wl-paste --no-newline --type '%1'").arg(mimeType));
}

class WaylandClipboard : public testing::Test {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
            GTEST_SKIP() << "needs a Wayland compositor (run inside tests/desktop/sway-session.sh)";
        clipboard = WaylandDataControlClipboard::connect();
        ASSERT_TRUE(clipboard) << "the compositor offers no data-control manager";
    }

    std::unique_ptr<WaylandDataControlClipboard> clipboard;
};

} // namespace

TEST_F(WaylandClipboard, CopiesWithoutFocusInEveryTextTypeAndTheNextCopyReplaces)
{
    for (const QString &text : { QStringLiteral("hsl(30°, 100%, 50%)"), QStringLiteral("#FF8000") }) {
        ASSERT_TRUE(clipboard->setText(text));
        for (const QString &type : WaylandDataControlClipboard::textMimeTypes())
            EXPECT_EQ(QString::fromUtf8(paste(type)), text) << type.toStdString();
        EXPECT_EQ(run(QStringLiteral("wl-paste --list-types")).count('\n'),
            WaylandDataControlClipboard::textMimeTypes().size());
    }
}

TEST_F(WaylandClipboard, AnotherProgramTakesTheClipboardAndWeTakeItBack)
{
    ASSERT_TRUE(clipboard->setText(QStringLiteral("#FF8000")));
    // wl-copy stays in the background serving its text until someone takes the clipboard back.
    run(QStringLiteral("wl-copy theirs"));
    EXPECT_TRUE(QTest::qWaitFor([] { return paste() == "theirs"; }, 10000));
    ASSERT_TRUE(clipboard->setText(QStringLiteral("#0080FF")));
    EXPECT_EQ(paste(), "#0080FF");
}

TEST_F(WaylandClipboard, SurvivesReadersThatGoAwayMidTransfer)
{
    // Far more than a pipe holds, so the transfer is still running when the readers leave.
    QString big;
    for (int i = 0; i < 200000; ++i)
        big += QStringLiteral("#FF8000 ");
    ASSERT_TRUE(clipboard->setText(big));
    for (int reader = 0; reader < 3; ++reader)
        EXPECT_EQ(run(QStringLiteral("wl-paste --no-newline | head -c 100")), big.left(100).toUtf8());
    // Still here (a SIGPIPE would have ended this process) and still serving all of it.
    EXPECT_EQ(paste().size(), big.toUtf8().size());
    ASSERT_TRUE(clipboard->setText(QStringLiteral("#FF8000")));
    EXPECT_EQ(paste(), "#FF8000");
}

TEST_F(WaylandClipboard, QClipboardWithoutFocusNeverClaimsACopy)
{
    // Qt reports owning the selection even when the compositor dropped it for want of focus.
    ASSERT_TRUE(clipboard->setText(QStringLiteral("before")));
    QtClipboard qt(DesktopSession::current().isWayland());
    EXPECT_FALSE(qt.setText(QStringLiteral("#FF8000")));
    EXPECT_EQ(paste(), "before");
}

TEST(WaylandCompositorGone, CopiesFailQuietlyOnceTheCompositorHasQuit)
{
    // Runs on its own, on the offscreen platform: Qt's own Wayland connection would end the
    // process with the compositor.
    if (qEnvironmentVariableIsEmpty("SWAYSOCK"))
        GTEST_SKIP() << "needs the sway session of tests/desktop/sway-session.sh";
    auto clipboard = WaylandDataControlClipboard::connect();
    ASSERT_TRUE(clipboard);
    ASSERT_TRUE(clipboard->setText(QStringLiteral("#FF8000")));
    run(QStringLiteral("swaymsg exit")); // sway may go before it answers: its status says nothing
    EXPECT_TRUE(QTest::qWaitFor([&] { return !clipboard->setText(QStringLiteral("#0080FF")); }, 10000));
    // The hung-up connection must not keep waking the event loop (a tray program would spin).
    int wakeUps = 0;
    QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&] { ++wakeUps; });
    QTest::qWait(300);
    EXPECT_LT(wakeUps, 100);
    EXPECT_FALSE(clipboard->setText(QStringLiteral("#0080FF")));
}
