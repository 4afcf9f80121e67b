// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SamplerGeometry.h"

#include <gtest/gtest.h>

using namespace SamplerGeometry;

void PrintTo(const QPoint &p, std::ostream *os)
{
    *os << '(' << p.x() << ", " << p.y() << ')';
}

TEST(SamplerGeometry, ScreenAreasKeepTheirOriginAndScaleTheirSize)
{
    EXPECT_EQ(screenArea(QRect(1920, 0, 2560, 1440), 1.5).device, QRect(1920, 0, 3840, 2160));
}

TEST(SamplerGeometry, ArrowNudgesStopAtEdgesAndCrossOntoNeighbours)
{
    // A 1920x1080 screen at scale 1 with a 4K screen at scale 2 to its right.
    const QList<ScreenArea> screens
        = { screenArea(QRect(0, 0, 1920, 1080), 1), screenArea(QRect(1920, 0, 1920, 1080), 2) };
    struct Case {
        QPoint from;
        int dx, dy;
        QPoint expected;
    } cases[] = {
        { { 100, 100 }, 1, 0, { 101, 100 } },
        { { 100, 100 }, 0, -10, { 100, 90 } },
        { { 5, 5 }, -10, -10, { 0, 0 } }, // a Shift+arrow at the corner stops on the corner pixel
        { { 1919, 500 }, 1, 0, { 1920, 500 } }, // onto the next screen
        { { 1919, 1079 }, 0, 1, { 1919, 1079 } }, // below the shorter screen is nowhere
        { { 1919, 1079 }, 5, 5, { 1924, 1084 } }, // the 4K screen is 2160 device pixels tall
        { { 3839 + 1920, 2159 }, 1, 1, { 3839 + 1920, 2159 } },
    };
    for (const Case &c : cases)
        EXPECT_EQ(nudged(screens, c.from, c.dx, c.dy), c.expected) << "case " << &c - cases;
}

TEST(SamplerGeometry, LoupeFlipsToStayOnScreen)
{
    const QRect screen(1920, 0, 1920, 1080);
    const QSize box(140, 170);
    const int gap = 18;
    struct Case {
        QPoint hotspot;
        QPoint expectedTopLeft;
    } cases[] = {
        { { 2500, 500 }, { 2500 + 1 + gap, 500 + 1 + gap } }, // below right
        { { 3839, 500 }, { 3839 - gap - 140, 519 } }, // right edge: flips left
        { { 2500, 1079 }, { 2519, 1079 - gap - 170 } }, // bottom edge: flips up
        { { 3839, 1079 }, { 3839 - gap - 140, 1079 - gap - 170 } }, // corner: both
        { { 3700, 950 }, { 3700 - gap - 140, 950 - gap - 170 } }, // box would just overflow: flips
        { { 3662, 500 }, { 3662 + 1 + gap, 519 } }, // box ends on the last column: no flip
    };
    for (const Case &c : cases) {
        const QRect placed = loupePlacement(screen, c.hotspot, box, gap);
        SCOPED_TRACE(testing::Message() << "case " << &c - cases);
        EXPECT_EQ(placed.topLeft(), c.expectedTopLeft);
        EXPECT_TRUE(screen.contains(placed) && !placed.contains(c.hotspot));
    }
    // A screen too small to flip on still holds the whole loupe.
    const QRect tiny(0, 0, 200, 200);
    EXPECT_TRUE(tiny.contains(loupePlacement(tiny, QPoint(100, 100), box, gap)));
}
