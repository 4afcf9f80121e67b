// SPDX-License-Identifier: GPL-3.0-or-later
// The data-control clipboard on a real compositor: headless sway, where no surface ever has
// keyboard focus (no input devices), exactly like a tray program after a global shortcut. Runs
// inside tests/desktop/sway-session.sh; wl-paste is the other program reading what we copied.
#include "platform/DesktopSession.h"
#include "platform/QtClipboard.h"
#include "platform/wayland/WaylandDataControlClipboard.h"

#include <QAbstractEventDispatcher>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct Pasted {
    bool finished = false;
    int exitCode = -1;
    QByteArray text;
};

// Runs a reader while our event loop keeps serving the selection (a blocking wait would starve it).
Pasted run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    Pasted result;
    result.finished = process.waitForStarted(10000)
        && QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000);
    if (!result.finished) {
        process.kill();
        process.waitForFinished(5000);
        return result;
    }
    result.exitCode = process.exitCode();
    result.text = process.readAllStandardOutput();
    return result;
}

QByteArray paste(const QString &mimeType = QString())
{
    QStringList arguments { QStringLiteral("--no-newline") };
    if (!mimeType.isEmpty())
        arguments << QStringLiteral("--type") << mimeType;
    const Pasted pasted = run(QStringLiteral("wl-paste"), arguments);
    EXPECT_TRUE(pasted.finished) << "wl-paste hung";
    return pasted.text;
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
    const QString texts[] = { QStringLiteral("#FF8000"), QStringLiteral("hsl(30°, 100%, 50%)"),
        QStringLiteral("rgb(255, 128, 0)") };
    for (const QString &text : texts) {
        SCOPED_TRACE(text.toStdString());
        ASSERT_TRUE(clipboard->setText(text));
        EXPECT_EQ(QString::fromUtf8(paste()), text);
        for (const QString &type : WaylandDataControlClipboard::textMimeTypes())
            EXPECT_EQ(QString::fromUtf8(paste(type)), text) << type.toStdString();
        const QByteArray listed = run(QStringLiteral("wl-paste"), { QStringLiteral("--list-types") }).text;
        EXPECT_EQ(QString::fromLatin1(listed).split(QLatin1Char('\n'), Qt::SkipEmptyParts).size(),
            WaylandDataControlClipboard::textMimeTypes().size());
    }
}

TEST_F(WaylandClipboard, AnotherProgramTakesTheClipboardAndWeTakeItBack)
{
    ASSERT_TRUE(clipboard->setText(QStringLiteral("#FF8000")));
    // wl-copy stays in the background serving its text until someone takes the clipboard back.
    ASSERT_EQ(run(QStringLiteral("wl-copy"), { QStringLiteral("theirs") }).exitCode, 0);
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
    for (int reader = 0; reader < 3; ++reader) {
        const Pasted partial = run(QStringLiteral("sh"),
            { QStringLiteral("-c"), QStringLiteral("wl-paste --no-newline | head -c 100") });
        ASSERT_TRUE(partial.finished);
        EXPECT_EQ(partial.text, big.left(100).toUtf8());
    }
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
    // sway may go before it answers, so swaymsg's status says nothing.
    ASSERT_TRUE(run(QStringLiteral("swaymsg"), { QStringLiteral("exit") }).finished);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !clipboard->setText(QStringLiteral("#0080FF")); }, 10000));
    // The hung-up connection must not keep waking the event loop (a tray program would spin).
    int wakeUps = 0;
    QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&] { ++wakeUps; });
    QTest::qWait(300);
    EXPECT_LT(wakeUps, 100);
    EXPECT_FALSE(clipboard->setText(QStringLiteral("#0080FF")));
}
