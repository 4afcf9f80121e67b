// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Contrast.h"
#include "model/ContrastPair.h"

#include <gtest/gtest.h>

TEST(Contrast, WorkedValues)
{
    const struct {
        double r, g, b, luminance;
        const char *white, *whiteLevel, *black, *blackLevel;
    } cases[] = {
        { 1.0, 0.42, 0.21, 0.3206, "2.8:1", "Fail", "7.4:1", "AAA" },
        { 0.5, 0.5, 0.5, 0.2140, "4.0:1", "AA Large", "5.3:1", "AA" },
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
}

TEST(Contrast, LinearBranchAtThresholdAndOutOfRangeComponents)
{
    EXPECT_DOUBLE_EQ(relativeLuminance(0.03928, 0, 0), 0.2126 * 0.03928 / 12.92);
    EXPECT_GE(contrastRatio(relativeLuminance(1.02, 1.02, 1.02), whiteLuminance), 1.0); // brighter than white
}

// Published values: the APCA-W3 references in both polarities, the WCAG edge around 4.5 on white
// (#767676 passes AA at 4.54, #777777 fails at 4.48), and a translucent foreground composited
// channel by channel before either measure (#000 at 0.5 on white draws as #808080).
TEST(ContrastPair, PublishedValues)
{
    const struct {
        double r, g, b, a;
        OpaqueColor background;
        double ratio, lc;
        const char *normal, *large, *nonText;
    } cases[] = {
        { 0x88 / 255., 0x88 / 255., 0x88 / 255., 1, { 1, 1, 1 }, 3.545, 63.06, "Fail", "AA", "Pass" },
        { 1, 1, 1, 1, { 0x88 / 255., 0x88 / 255., 0x88 / 255. }, 3.545, -68.54, "Fail", "AA", "Pass" },
        { 0, 0, 0, 1, { 0xAA / 255., 0xAA / 255., 0xAA / 255. }, 9.040, 58.15, "AAA", "AAA", "Pass" },
        { 0xAA / 255., 0xAA / 255., 0xAA / 255., 1, { 0, 0, 0 }, 9.040, -56.24, "AAA", "AAA", "Pass" },
        { 0x76 / 255., 0x76 / 255., 0x76 / 255., 1, { 1, 1, 1 }, 4.542, 71.57, "AA", "AAA", "Pass" },
        { 0x77 / 255., 0x77 / 255., 0x77 / 255., 1, { 1, 1, 1 }, 4.478, 71.11, "Fail", "AA", "Pass" },
        { 0, 0, 0, 0.5, { 1, 1, 1 }, 3.977, 67.13, "Fail", "AA", "Pass" },
        { 1, 1, 1, 1, { 1, 1, 1 }, 1.0, 0, "Fail", "Fail", "Fail" },
    };
    for (const auto &c : cases) {
        const ContrastPair pair = measureContrast(c.r, c.g, c.b, c.a, c.background);
        SCOPED_TRACE(::testing::Message() << c.r << ' ' << c.a << " on " << c.background.red);
        EXPECT_NEAR(pair.ratio, c.ratio, 0.005);
        EXPECT_NEAR(pair.apcaLc, c.lc, 0.005);
        EXPECT_EQ(gradeText(pair.normalText()), QLatin1String(c.normal));
        EXPECT_EQ(gradeText(pair.largeText()), QLatin1String(c.large));
        EXPECT_EQ(nonTextGradeText(pair.nonTextPasses()), QLatin1String(c.nonText));
    }
    // The reading goes by size in either polarity, at inclusive thresholds.
    EXPECT_EQ(apcaUse(-75), ApcaUse::bodyText);
    EXPECT_EQ(apcaUse(59.99), ApcaUse::headlines);
    EXPECT_EQ(apcaUse(14.9), ApcaUse::invisible);
}
