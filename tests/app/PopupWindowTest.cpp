// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PopupWindow.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>

#include <gtest/gtest.h>

TEST(PopupWindowPlacement, BesideTheIconAwayFromThePanelAndWholeOnTheScreen)
{
    // A 1280 × 800 screen; a long history (1000 pixels) must scroll within the room, 4 pixels
    // from the icon, instead of covering it.
    const QRect screen(0, 0, 1280, 800);
    struct Case {
        const char *what;
        QRect anchor;
        QRect available;
        int natural;
        QRect expected;
    };
    const Case cases[] = {
        { "top panel, short", QRect(1200, 0, 24, 24), screen, 200, QRect(960, 28, 320, 200) },
        { "top panel, long", QRect(1200, 0, 24, 24), screen, 1000, QRect(960, 28, 320, 800 - 28) },
        { "top panel's corner, no strut (scale 2)", QRect(1258, 1, 22, 11), screen, 200,
            QRect(960, 16, 320, 200) },
        { "bottom panel, short", QRect(600, 776, 24, 24), screen, 200, QRect(451, 572, 320, 200) },
        { "bottom panel, long", QRect(600, 776, 24, 24), screen, 1000, QRect(451, 0, 320, 772) },
        { "left panel, short", QRect(0, 400, 24, 24), screen, 200, QRect(28, 311, 320, 200) },
        { "right panel, long", QRect(1256, 700, 24, 24), screen, 1000, QRect(932, 0, 320, 800) },
        { "no icon geometry: under the pointer", QRect(), screen, 200, QRect(480, 304, 320, 200) },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const QRect room = PopupWindow::room(c.anchor, screen, c.available);
        const QSize size(320, qMin(c.natural, room.height()));
        const QRect popup(PopupWindow::placement(c.anchor, QPoint(640, 300), size, room), size);
        EXPECT_EQ(popup, c.expected);
        EXPECT_TRUE(c.available.contains(popup));
        EXPECT_FALSE(popup.intersects(c.anchor));
    }
}

TEST(PopupWindowContent, IsBuiltWhenThePopupFirstOpens)
{
    // Building the list loads fonts and every row: a resident tray program pays for it only
    // once the user opens the popup.
    PopupWindow popup(false);
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

    popup.setContent([] { return new QLabel(QStringLiteral("next")); });
    EXPECT_TRUE(qobject_cast<QLabel *>(popup.content()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
}
