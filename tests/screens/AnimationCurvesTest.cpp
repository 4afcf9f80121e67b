// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingCheckmarkShape.h"
#include "screens/TrimmedPath.h"

#include <gtest/gtest.h>

TEST(TrimmedPath, DrawsTheFractionOfTheLengthFromTheStart)
{
    QPainterPath ring;
    ring.arcMoveTo(QRectF(0, 0, 72, 72), 90);
    ring.arcTo(QRectF(0, 0, 72, 72), 90, -360);
    for (const QPainterPath &path : { OnboardingCheckmarkShape::path(QRectF(0, 0, 100, 100)), ring }) {
        EXPECT_TRUE(trimmedPath(path, 0).isEmpty());
        for (qreal fraction : { 0.1, 0.25, 0.5, 0.9 }) {
            const QPainterPath part = trimmedPath(path, fraction);
            EXPECT_NEAR(part.length(), path.length() * fraction, path.length() * 0.01) << fraction;
            EXPECT_EQ(part.pointAtPercent(0), path.pointAtPercent(0));
        }
        EXPECT_NEAR(trimmedPath(path, 1).length(), path.length(), 1e-9);
    }
    // The ring starts at the top and runs clockwise (towards the right first).
    const QPainterPath quarter = trimmedPath(ring, 0.25);
    EXPECT_NEAR(quarter.pointAtPercent(0).x(), 36, 0.01);
    EXPECT_NEAR(quarter.pointAtPercent(0).y(), 0, 0.01);
    EXPECT_NEAR(quarter.pointAtPercent(1).x(), 72, 0.5);
    EXPECT_NEAR(quarter.pointAtPercent(1).y(), 36, 0.5);
}
