// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ColorFormat.h"
#include "model/PickedColor.h"

#include <QLocale>
#include <clocale>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Example {
    double r, g, b, a;
    const char *hex, *rgb, *hsl, *hsb, *css, *uiColor;
};

// The worked examples every format must reproduce to the character.
const Example examples[] = {
    { 1.0, 0.42, 0.21, 1.0, "#FF6B36", "rgb(255, 107, 54)", "hsl(16, 100%, 61%)", "hsb(16, 79%, 100%)",
        "rgba(255, 107, 54, 1.0)", "UIColor(red: 1.00, green: 0.42, blue: 0.21, alpha: 1.00)" },
    { 0.2, 0.4, 0.8, 0.75, "#3366CC", "rgb(51, 102, 204)", "hsl(220, 60%, 50%)", "hsb(220, 75%, 80%)",
        "rgba(51, 102, 204, 0.8)", "UIColor(red: 0.20, green: 0.40, blue: 0.80, alpha: 0.75)" },
    { 1.0, 0.0, 0.007, 1.0, "#FF0002", "rgb(255, 0, 2)", "hsl(360, 100%, 50%)", "hsb(360, 100%, 100%)",
        "rgba(255, 0, 2, 1.0)", "UIColor(red: 1.00, green: 0.00, blue: 0.01, alpha: 1.00)" },
    { 0.25, 0.5, 0.5, 0.25, "#408080", "rgb(64, 128, 128)", "hsl(180, 33%, 38%)", "hsb(180, 50%, 50%)",
        "rgba(64, 128, 128, 0.2)", "UIColor(red: 0.25, green: 0.50, blue: 0.50, alpha: 0.25)" },
    // Out of range: clamped in the 8-bit formats, printed as is in the others.
    { 1.02, -0.01, 0.5, 1.0, "#FF0080", "rgb(255, 0, 128)", "hsl(330, 104%, 51%)", "hsb(330, 101%, 102%)",
        "rgba(255, 0, 128, 1.0)", "UIColor(red: 1.02, green: -0.01, blue: 0.50, alpha: 1.00)" },
};

} // namespace

TEST(ColorFormat, WorkedExamplesInEveryFormat)
{
    for (const Example &e : examples) {
        SCOPED_TRACE(e.hex);
        const PickedColor c = PickedColor::fromSample(e.r, e.g, e.b, e.a);
        EXPECT_EQ(c.formatted(ColorFormat::hex), QLatin1String(e.hex));
        EXPECT_EQ(c.formatted(ColorFormat::hexLower), QString::fromLatin1(e.hex).toLower());
        EXPECT_EQ(c.formatted(ColorFormat::rgb), QLatin1String(e.rgb));
        EXPECT_EQ(c.formatted(ColorFormat::rgbDecimal), QString::fromLatin1(e.rgb).mid(4).chopped(1));
        EXPECT_EQ(c.formatted(ColorFormat::hsl), QLatin1String(e.hsl));
        EXPECT_EQ(c.formatted(ColorFormat::hsb), QLatin1String(e.hsb));
        EXPECT_EQ(c.formatted(ColorFormat::css), QLatin1String(e.css));
        EXPECT_EQ(c.formatted(ColorFormat::uiColor), QLatin1String(e.uiColor));
        // SwiftUI is the UIColor text without alpha.
        EXPECT_EQ(c.formatted(ColorFormat::swiftUI),
            QString::fromLatin1(e.uiColor).section(u", alpha"_s, 0, 0).mid(2) + u')');
    }
}

TEST(ColorFormat, ChannelRoundingHalvesAwayFromZeroAndClamps)
{
    const struct {
        double component;
        int channel;
    } cases[] = { { 0.21, 54 }, { 126.5 / 255, 127 }, { -0.5 / 255, 0 }, { 1e300, 255 }, { -1e300, 0 } };
    for (const auto &c : cases)
        EXPECT_EQ(eightBitChannel(c.component), c.channel) << c.component;
}

TEST(ColorFormat, GreyHasNoHueAndHueIsNotWrappedAfterRounding)
{
    // Within 0.00001 of grey: hue and saturation 0.
    EXPECT_EQ(formatColor(0.5, 0.500005, 0.5, 1, ColorFormat::hsl), u"hsl(0, 0%, 50%)");
    EXPECT_EQ(formatColor(0.5, 0.500005, 0.5, 1, ColorFormat::hsb), u"hsb(0, 0%, 50%)");
    // Slightly more: a colour again.
    EXPECT_NE(formatColor(0.5, 0.50002, 0.5, 1, ColorFormat::hsl), u"hsl(0, 0%, 50%)");
    // Max equal in r and g: the red branch decides (hue 60).
    EXPECT_EQ(formatColor(1.0, 1.0, 0.0, 1, ColorFormat::hsb), u"hsb(60, 100%, 100%)");
    EXPECT_EQ(formatColor(0.0, 1.0, 1.0, 1, ColorFormat::hsl), u"hsl(180, 100%, 50%)");
}

TEST(ColorFormat, FixedDecimalsRoundTiesToEvenAndKeepSign)
{
    // 0.125 is an exact binary tie: "%.2f" gives 0.12 (alpha 0.25 and 0.75 are in the examples).
    EXPECT_EQ(formatColor(0.125, 0.375, -0.001, 1, ColorFormat::swiftUI),
        u"Color(red: 0.12, green: 0.38, blue: -0.00)");
}

TEST(ColorFormat, NumbersIgnoreTheUsersLocale)
{
    // A user whose locale writes decimal commas still gets points on the clipboard.
    const std::string saved = std::setlocale(LC_ALL, nullptr);
    const bool haveGerman = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(formatColor(1.0, 0.42, 0.21, 0.75, ColorFormat::uiColor),
        u"UIColor(red: 1.00, green: 0.42, blue: 0.21, alpha: 0.75)");
    EXPECT_EQ(formatColor(1.0, 0.42, 0.21, 0.75, ColorFormat::css), u"rgba(255, 107, 54, 0.8)");
    EXPECT_EQ(formatColor(1234.0, 0, 0, 1, ColorFormat::hsl),
        u"hsl(0, -100%, 61700%)"); // no digit grouping; unclamped
    std::setlocale(LC_ALL, saved.c_str());
    QLocale::setDefault(QLocale::c());
    if (!haveGerman)
        GTEST_SKIP() << "de_DE.UTF-8 is not installed; checked under the Qt default locale only";
}

TEST(ColorFormat, StoredNamesParseExactly)
{
    EXPECT_EQ(colorFormatFromRawValue(u"Hex (lowercase)"_s), ColorFormat::hexLower);
    EXPECT_EQ(colorFormatFromRawValue(u"HSB/HSV"_s), ColorFormat::hsb);
    for (const QString &stored : { u"hex"_s, u"Hex "_s, QString() })
        EXPECT_EQ(colorFormatFromRawValue(stored), std::nullopt);
}
