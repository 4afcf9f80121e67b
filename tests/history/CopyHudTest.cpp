// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/CopyHud.h"

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPointer>
#include <QProcess>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

const QString sampleMessage = QStringLiteral("Copied #FF6B36");

bool onX11()
{
    return QGuiApplication::platformName() == u"xcb";
}

QString run(const QString &program, const QStringList &args)
{
    QProcess process;
    process.start(program, args);
    process.waitForFinished(10000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

// Whether the X server shows the window, and where: "x,y,w,h IsViewable".
QString xGeometry(WId window)
{
    const QString info = run(QStringLiteral("xwininfo"), { QStringLiteral("-id"), QString::number(window) });
    QStringList fields;
    for (const char *name :
        { "Absolute upper-left X:", "Absolute upper-left Y:", "Width:", "Height:", "Map State:" })
        fields << info.section(QLatin1String(name), 1).section(u'\n', 0, 0).trimmed();
    return fields.mid(0, 4).join(u',') + u' ' + fields[4];
}

class CopyHudTest : public ::testing::Test {
protected:
    void SetUp() override { QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center()); }
    CopyHud hud { [] { return true; }, onX11() };
};

TEST(CopyHudGeometry, CentredOnTheUsableAreaAHundredPixelsAboveItsMiddle)
{
    const struct {
        QRect available;
        QSize size;
        QPoint expected;
    } cases[] = {
        { { 0, 32, 1280, 768 }, { 151, 36 }, { 565, 298 } }, // a top panel; 564.5 rounds away from zero
        { { -1024, 0, 1024, 768 }, { 100, 36 }, { -562, 266 } }, // a screen left of the primary one
    };
    for (const auto &c : cases)
        EXPECT_EQ(CopyHud::capsulePosition(c.available, c.size), c.expected) << c.available.x();
}

// A new message replaces the fading old one at once and stays its whole time.
TEST_F(CopyHudTest, FadesInWhereItBelongsAndANewMessageReplacesTheOldAtOnce)
{
    hud.showHUD(QStringLiteral("Copied #000000"));
    QPointer<QWidget> first = hud.currentWindow();
    ASSERT_TRUE(first);
    EXPECT_LT(first->windowOpacity(), 0.5); // starts transparent
    QTRY_COMPARE_WITH_TIMEOUT(first->windowOpacity(), 1.0, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(first && first->windowOpacity() < 0.9, 10000); // fading out now
    QElapsedTimer shown;
    shown.start();
    hud.showHUD(sampleMessage);
    QPointer<QWidget> second = hud.currentWindow();
    ASSERT_TRUE(second && second != first);
    EXPECT_TRUE(!first || !first->isVisible()); // gone without a fade
    const QSize size = CopyHud::capsuleSize(sampleMessage);
    const QRect g(
        CopyHud::capsulePosition(QGuiApplication::primaryScreen()->availableGeometry(), size), size);
    EXPECT_EQ(second->geometry(), g);
    if (onX11())
        QTRY_COMPARE_WITH_TIMEOUT(xGeometry(second->winId()),
            QStringLiteral("%1,%2,%3,%4 IsViewable").arg(g.x()).arg(g.y()).arg(g.width()).arg(g.height()),
            10000);
    QTRY_VERIFY_WITH_TIMEOUT(!second, 20000);
    EXPECT_EQ(hud.currentWindow(), nullptr);
    EXPECT_GE(shown.elapsed(), 1750); // 1.5 s on screen, then a 0.3 s fade
}

TEST_F(CopyHudTest, NeverTakesFocusAndLetsClicksThrough)
{
    if (!onX11())
        GTEST_SKIP() << "needs an X server with a window manager";

    class Editor : public QWidget {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    } editor;
    editor.setGeometry(QGuiApplication::primaryScreen()->availableGeometry().adjusted(40, 40, -40, -40));
    editor.show();
    editor.activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(editor.isActiveWindow(), 10000);
    const QString editorId = QString::number(editor.winId());
    QTRY_COMPARE_WITH_TIMEOUT(
        run(QStringLiteral("xdotool"), { QStringLiteral("getwindowfocus") }), editorId, 10000);

    hud.showHUD(sampleMessage);
    QPointer<QWidget> window = hud.currentWindow();
    QTRY_VERIFY_WITH_TIMEOUT(xGeometry(window->winId()).endsWith(u"IsViewable"), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(window->windowOpacity(), 1.0, 10000);

    const QPoint centre = window->geometry().center();
    run(QStringLiteral("xdotool"),
        { QStringLiteral("mousemove"), QString::number(centre.x()), QString::number(centre.y()),
            QStringLiteral("click"), QStringLiteral("1") });
    QTRY_COMPARE_WITH_TIMEOUT(editor.presses, 1, 10000);
    EXPECT_TRUE(window); // still showing: the click went through it
    EXPECT_EQ(run(QStringLiteral("xdotool"), { QStringLiteral("getwindowfocus") }), editorId);
}

} // namespace
