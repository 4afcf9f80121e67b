// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ColorFormat.h"

#include "model/NumberText.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {

struct FormatNames {
    ColorFormat format;
    const char *raw;
    const char *caseName;
};

// The raw values are stored and read by the command line as they are; people see them through
// formatLabel(), translated where a word in them is (the others are names of notations).
constexpr FormatNames names[] = {
    //: The name of a colour format: hexadecimal digits, as in #FF6B36
    { ColorFormat::hex, QT_TRANSLATE_NOOP("ColorFormat", "Hex"), "hex" },
    //: The name of a colour format: hexadecimal digits in lower case, as in #ff6b36
    { ColorFormat::hexLower, QT_TRANSLATE_NOOP("ColorFormat", "Hex (lowercase)"), "hexLower" },
    { ColorFormat::rgb, "RGB", "rgb" },
    //: The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54
    { ColorFormat::rgbDecimal, QT_TRANSLATE_NOOP("ColorFormat", "RGB (decimal)"), "rgbDecimal" },
    { ColorFormat::hsl, "HSL", "hsl" },
    { ColorFormat::hsb, "HSB/HSV", "hsb" },
    { ColorFormat::swiftUI, "SwiftUI Color", "swiftUI" },
    { ColorFormat::uiColor, "UIColor", "uiColor" },
    { ColorFormat::css, "CSS rgba", "css" },
};

const FormatNames &namesOf(ColorFormat format)
{
    return names[static_cast<int>(format)];
}

// Below this spread the colour counts as grey: hue and saturation 0.
constexpr double greyThreshold = 0.00001;

struct Extremes {
    double max, min, delta;
};

Extremes extremes(double r, double g, double b)
{
    const double max = std::max(std::max(r, g), b);
    const double min = std::min(std::min(r, g), b);
    return { max, min, max - min };
}

double hueDegrees(double r, double g, double b, const Extremes &e)
{
    double h;
    if (e.max == r)
        h = std::fmod((g - b) / e.delta, 6.0); // keeps the dividend's sign
    else if (e.max == g)
        h = (b - r) / e.delta + 2.0;
    else
        h = (r - g) / e.delta + 4.0;
    h *= 60.0;
    if (h < 0)
        h += 360.0;
    return h;
}

QString hexDigits(double r, double g, double b, bool upper)
{
    const char *digits = upper ? "0123456789ABCDEF" : "0123456789abcdef";
    QString text(7, QLatin1Char('#'));
    int i = 1;
    for (double c : { r, g, b }) {
        const int v = eightBitChannel(c);
        text[i++] = QLatin1Char(digits[v >> 4]);
        text[i++] = QLatin1Char(digits[v & 15]);
    }
    return text;
}

QString channelList(double r, double g, double b)
{
    return QString::number(eightBitChannel(r)) + QLatin1String(", ") + QString::number(eightBitChannel(g))
        + QLatin1String(", ") + QString::number(eightBitChannel(b));
}

QString percentTriple(const char *prefix, const HueSaturationValue &v)
{
    return QLatin1String(prefix) + u'(' + NumberText::roundedInteger(v.hue) + QLatin1String(", ")
        + NumberText::roundedInteger(v.saturation) + QLatin1String("%, ")
        + NumberText::roundedInteger(v.third) + QLatin1String("%)");
}

} // namespace

QString rawValue(ColorFormat format)
{
    return QString::fromLatin1(namesOf(format).raw);
}

QString colorSentence(const QString &sentence, const QStringList &colorTexts)
{
    const QString mark = sentence.isRightToLeft() ? QStringLiteral("\u200E") : QString();
    QString result = sentence;
    for (const QString &text : colorTexts)
        result = result.arg(mark + text + mark);
    return result;
}

QString formatLabel(ColorFormat format)
{
    return QCoreApplication::translate("ColorFormat", namesOf(format).raw);
}

QString caseName(ColorFormat format)
{
    return QString::fromLatin1(namesOf(format).caseName);
}

std::optional<ColorFormat> colorFormatFromRawValue(const QString &raw)
{
    for (const auto &n : names)
        if (raw == QLatin1String(n.raw))
            return n.format;
    return std::nullopt;
}

int eightBitChannel(double component)
{
    const double scaled = std::round(component * 255.0);
    if (!(scaled > 0)) // also NaN
        return 0;
    if (scaled > 255)
        return 255;
    return static_cast<int>(scaled);
}

HueSaturationValue toHsl(double r, double g, double b)
{
    const Extremes e = extremes(r, g, b);
    const double lightness = (e.max + e.min) * 0.5;
    if (!(e.delta > greyThreshold))
        return { 0, 0, lightness * 100 };
    const double s = lightness > 0.5 ? e.delta / (2.0 - e.max - e.min) : e.delta / (e.max + e.min);
    return { hueDegrees(r, g, b, e), s * 100, lightness * 100 };
}

HueSaturationValue toHsb(double r, double g, double b)
{
    const Extremes e = extremes(r, g, b);
    if (!(e.delta > greyThreshold))
        return { 0, 0, e.max * 100 };
    const double s = e.max > 0 ? e.delta / e.max : 0;
    return { hueDegrees(r, g, b, e), s * 100, e.max * 100 };
}

QString hexText(double r, double g, double b)
{
    return hexDigits(r, g, b, true);
}

QString rgbText(double r, double g, double b)
{
    return QLatin1String("rgb(") + channelList(r, g, b) + u')';
}

QString hslText(double r, double g, double b)
{
    return percentTriple("hsl", toHsl(r, g, b));
}

QString formatColor(double r, double g, double b, double a, ColorFormat format)
{
    using NumberText::fixed;
    switch (format) {
    case ColorFormat::hex:
        return hexDigits(r, g, b, true);
    case ColorFormat::hexLower:
        return hexDigits(r, g, b, false);
    case ColorFormat::rgb:
        return rgbText(r, g, b);
    case ColorFormat::rgbDecimal:
        return channelList(r, g, b);
    case ColorFormat::hsl:
        return hslText(r, g, b);
    case ColorFormat::hsb:
        return percentTriple("hsb", toHsb(r, g, b));
    case ColorFormat::swiftUI:
        return QLatin1String("Color(red: ") + fixed(r, 2) + QLatin1String(", green: ") + fixed(g, 2)
            + QLatin1String(", blue: ") + fixed(b, 2) + u')';
    case ColorFormat::uiColor:
        return QLatin1String("UIColor(red: ") + fixed(r, 2) + QLatin1String(", green: ") + fixed(g, 2)
            + QLatin1String(", blue: ") + fixed(b, 2) + QLatin1String(", alpha: ") + fixed(a, 2) + u')';
    case ColorFormat::css:
        return QLatin1String("rgba(") + channelList(r, g, b) + QLatin1String(", ") + fixed(a, 1) + u')';
    }
    return {};
}
