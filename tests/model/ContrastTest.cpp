// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Contrast.h"

#include <gtest/gtest.h>

TEST(Contrast, WorkedValues)
{
    const struct {
        double r, g, b, luminance;
        const char *white, *whiteLevel, *black, *blackLevel;
    } cases[] = {
        { 1.0, 0.42, 0.21, 0.3206, "2.8:1", "Fail", "7.4:1", "AAA" },
        { 0.5, 0.5, 0.5, 0.2140, "4.0:1", "AA Large", "5.3:1", "AA" },
        { 0.2, 0.4, 0.8, 0.1457, "5.4:1", "AA", "3.9:1", "AA Large" },
        { 1.0, 1.0, 1.0, 1.0, "1.0:1", "Fail", "21.0:1", "AAA" },
    };
    for (const auto &c : cases) {
        const double l = relativeLuminance(c.r, c.g, c.b);
        EXPECT_NEAR(l, c.luminance, 0.0001);
        const double white = contrastRatio(l, whiteLuminance);
        const double black = contrastRatio(l, blackLuminance);
        EXPECT_EQ(contrastRatioText(white), QLatin1String(c.white));
        EXPECT_EQ(contrastLevel(white), QLatin1String(c.whiteLevel));
        EXPECT_EQ(contrastRatioText(black), QLatin1String(c.black));
        EXPECT_EQ(contrastLevel(black), QLatin1String(c.blackLevel));
    }
}

TEST(Contrast, LevelComesFromTheUnroundedRatio)
{
    // Shown as 4.5:1 but below 4.5: "AA Large"; shown as 3.0:1 but below 3: "Fail".
    const double grey466 = contrastRatio(relativeLuminance(0.466, 0.466, 0.466), whiteLuminance);
    EXPECT_EQ(contrastRatioText(grey466), u"4.5:1");
    EXPECT_EQ(contrastLevel(grey466), u"AA Large");
    const double grey345 = contrastRatio(relativeLuminance(0.345, 0.345, 0.345), blackLuminance);
    EXPECT_EQ(contrastRatioText(grey345), u"3.0:1");
    EXPECT_EQ(contrastLevel(grey345), u"Fail");
    // Thresholds are inclusive.
    EXPECT_EQ(contrastLevel(7.0), u"AAA");
    EXPECT_EQ(contrastLevel(4.5), u"AA");
    EXPECT_EQ(contrastLevel(3.0), u"AA Large");
    EXPECT_EQ(contrastLevel(2.9999), u"Fail");
}

TEST(Contrast, LinearBranchAtThresholdAndOutOfRangeComponents)
{
    EXPECT_DOUBLE_EQ(relativeLuminance(0.03928, 0, 0), 0.2126 * 0.03928 / 12.92);
    EXPECT_GE(contrastRatio(relativeLuminance(1.02, 1.02, 1.02), whiteLuminance), 1.0); // brighter than white
}
