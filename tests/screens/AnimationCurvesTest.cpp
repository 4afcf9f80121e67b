// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/AnimationCurves.h"
#include "screens/OnboardingCheckmarkShape.h"
#include "screens/OnboardingView.h"
#include "screens/TrimmedPath.h"

#include <gtest/gtest.h>

TEST(AnimationCurves, IconSpringStartsAtZeroOvershootsALittleAndSettlesAtOne)
{
    const QEasingCurve spring = AnimationCurves::iconSpring();
    EXPECT_DOUBLE_EQ(spring.valueForProgress(0), 0);
    EXPECT_DOUBLE_EQ(spring.valueForProgress(1), 1);
    qreal peak = 0;
    qreal peakAt = 0;
    for (int i = 0; i <= 1000; ++i) {
        if (spring.valueForProgress(i / 1000.0) > peak) {
            peak = spring.valueForProgress(i / 1000.0);
            peakAt = i / 1000.0;
        }
    }
    // Damping 0.7 overshoots by about 4.6 %, at half the damped period (~0.42 s of ~0.94 s).
    EXPECT_NEAR(peak, 1.046, 0.005);
    EXPECT_NEAR(peakAt * AnimationCurves::iconSpringMilliseconds() / 1000.0, 0.42, 0.02);
    EXPECT_NEAR(spring.valueForProgress(0.999), 1, 0.002);
    EXPECT_NEAR(AnimationCurves::iconSpringMilliseconds(), 942, 2);
}

TEST(AnimationCurves, EaseCurvesAndThereAndBack)
{
    const struct {
        const char *name;
        QEasingCurve curve;
        qreal progress;
        qreal expected;
    } cases[] = {
        { "ease-out is quick to start", AnimationCurves::easeOut(), 0.25, 0.378 },
        { "ease-out ends at 1", AnimationCurves::easeOut(), 1, 1 },
        { "ease-in-out is symmetric", AnimationCurves::easeInOut(), 0.5, 0.5 },
        { "ease-in-out is slow to start", AnimationCurves::easeInOut(), 0.1, 0.02 },
        { "pulse starts low", AnimationCurves::easeInOutThereAndBack(), 0, 0 },
        { "pulse is full at half the loop", AnimationCurves::easeInOutThereAndBack(), 0.5, 1 },
        { "pulse is back at the end", AnimationCurves::easeInOutThereAndBack(), 1, 0 },
        { "pulse comes back the same way", AnimationCurves::easeInOutThereAndBack(), 0.75, 0.5 },
    };
    for (const auto &c : cases)
        EXPECT_NEAR(c.curve.valueForProgress(c.progress), c.expected, 0.02) << c.name;
}

TEST(TrimmedPath, DrawsTheFractionOfTheLengthFromTheStart)
{
    const QPainterPath check = OnboardingCheckmarkShape::path(QRectF(0, 0, 100, 100));
    EXPECT_EQ(check.elementAt(0), QPointF(22, 50));
    EXPECT_EQ(check.elementAt(1), QPointF(42, 65));
    EXPECT_EQ(check.elementAt(2), QPointF(75, 30));

    QPainterPath ring;
    ring.arcMoveTo(QRectF(0, 0, 72, 72), 90);
    ring.arcTo(QRectF(0, 0, 72, 72), 90, -360);

    for (const QPainterPath &path : { check, ring }) {
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

TEST(OnboardingView, ShimmerBandSweepsFromOutsideToOutside)
{
    const struct {
        qreal phase;
        qreal left;
        qreal right;
    } cases[] = { { 0, -40, 40 }, { 0.5, 100, 180 }, { 1, 240, 320 } };
    for (const auto &c : cases) {
        const auto [left, right] = OnboardingView::shimmerBand(200, c.phase);
        EXPECT_DOUBLE_EQ(left, c.left) << c.phase;
        EXPECT_DOUBLE_EQ(right, c.right) << c.phase;
    }
}
