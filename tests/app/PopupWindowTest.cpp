// Where the popup opens: under the tray icon, above it for a bottom panel, near the pointer when
// the icon's place is unknown, and always whole on the screen's available area; and when its
// content is built.
#include "app/PopupWindow.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>

#include <gtest/gtest.h>

namespace {
constexpr int gap = 4; // between the tray icon and the popup
} // namespace

TEST(PopupWindowPlacement, StaysWholeOnTheAvailableArea)
{
    const QRect available(0, 24, 1280, 776); // a 24-pixel panel at the top
    const QSize size(320, 400);
    struct Case {
        const char *what;
        QRect anchor;
        QPoint pointer;
        QPoint expected;
    };
    const Case cases[] = {
        { "icon mid-panel: centred under it", QRect(600, 0, 24, 24), {}, QPoint(451, 24 + gap) },
        { "icon at the right edge: pulled left", QRect(1256, 0, 24, 24), {}, QPoint(960, 24 + gap) },
        { "icon at the left edge: pulled right", QRect(0, 0, 24, 24), {}, QPoint(0, 24 + gap) },
        { "bottom panel: above the icon", QRect(600, 776, 24, 24), {}, QPoint(451, 776 - gap - 400) },
        { "no icon geometry: under the pointer", QRect(), QPoint(640, 300), QPoint(480, 300 + gap) },
        { "pointer low on the screen: clamped up", QRect(), QPoint(640, 790), QPoint(480, 800 - 400) },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const QPoint origin = PopupWindow::placement(c.anchor, c.pointer, size, available);
        EXPECT_EQ(origin, c.expected);
        EXPECT_TRUE(available.contains(QRect(origin, size)));
    }
}

TEST(PopupWindowPlacement, ALargerPopupThanTheScreenKeepsItsTopLeftVisible)
{
    const QRect available(1920, 0, 300, 200);
    EXPECT_EQ(PopupWindow::placement(QRect(2100, 0, 24, 24), {}, QSize(320, 400), available), QPoint(1920, 0));
}

TEST(PopupWindowContent, IsBuiltWhenThePopupFirstOpens)
{
    // Building the list loads fonts and every row: a resident tray program pays for it only
    // once the user opens the popup.
    PopupWindow popup;
    int built = 0;
    QPointer<QWidget> first;
    popup.setContent([&]() -> QWidget * {
        ++built;
        return first = new QWidget;
    });
    EXPECT_EQ(built, 0);
    popup.popUp(QRect());
    EXPECT_EQ(built, 1);
    EXPECT_EQ(popup.content(), first);
    popup.popUp(QRect());
    EXPECT_EQ(built, 1) << "reopening keeps the content";

    // New content while open replaces the old at once.
    popup.setContent([] { return new QLabel(QStringLiteral("next")); });
    EXPECT_TRUE(qobject_cast<QLabel *>(popup.content()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
}
