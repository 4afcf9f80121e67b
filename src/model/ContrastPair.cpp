// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ContrastPair.h"

#include "model/Contrast.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {

// APCA-W3 0.0.98G-4g: the screen model, the exponents of the two polarities, the soft clamp of
// near-black, the scale and the offsets, as published for WCAG 3 drafts.
constexpr double apcaTransferExponent = 2.4;
constexpr double apcaRed = 0.2126729, apcaGreen = 0.7151522, apcaBlue = 0.0721750;
constexpr double normalBackground = 0.56, normalText = 0.57; // dark text on a light background
constexpr double reverseBackground = 0.65, reverseText = 0.62; // light text on a dark background
constexpr double blackThreshold = 0.022, blackClamp = 1.414;
constexpr double minimumDifference = 0.0005;
constexpr double scale = 1.14, offset = 0.027, lowClip = 0.1;

// Estimated screen luminance: a plain 2.4 power, not the sRGB piecewise curve, then a soft
// lift of the darkest values for flare.
double screenLuminance(const OpaqueColor &c)
{
    auto power = [](double v) { return std::pow(std::max(v, 0.0), apcaTransferExponent); };
    const double y = apcaRed * power(c.red) + apcaGreen * power(c.green) + apcaBlue * power(c.blue);
    return y < blackThreshold ? y + std::pow(blackThreshold - y, blackClamp) : y;
}

} // namespace

OpaqueColor compositedOnto(double red, double green, double blue, double alpha, const OpaqueColor &background)
{
    const double a = std::clamp(alpha, 0.0, 1.0);
    auto mix = [a](double front, double back) { return front * a + back * (1 - a); };
    return { mix(red, background.red), mix(green, background.green), mix(blue, background.blue) };
}

double apcaContrast(const OpaqueColor &text, const OpaqueColor &background)
{
    const double yText = screenLuminance(text);
    const double yBackground = screenLuminance(background);
    if (std::abs(yBackground - yText) < minimumDifference)
        return 0;
    if (yBackground > yText) {
        const double s = (std::pow(yBackground, normalBackground) - std::pow(yText, normalText)) * scale;
        return s < lowClip ? 0 : (s - offset) * 100;
    }
    const double s = (std::pow(yBackground, reverseBackground) - std::pow(yText, reverseText)) * scale;
    return s > -lowClip ? 0 : (s + offset) * 100;
}

ContrastPair measureContrast(
    double red, double green, double blue, double alpha, const OpaqueColor &background)
{
    ContrastPair pair;
    pair.foreground = compositedOnto(red, green, blue, alpha, background);
    pair.background = background;
    pair.ratio
        = contrastRatio(relativeLuminance(pair.foreground.red, pair.foreground.green, pair.foreground.blue),
            relativeLuminance(background.red, background.green, background.blue));
    pair.apcaLc = apcaContrast(pair.foreground, background);
    return pair;
}

TextGrade ContrastPair::normalText() const
{
    return ratio >= 7.0 ? TextGrade::aaa : ratio >= 4.5 ? TextGrade::aa : TextGrade::fail;
}

TextGrade ContrastPair::largeText() const
{
    return ratio >= 4.5 ? TextGrade::aaa : ratio >= 3.0 ? TextGrade::aa : TextGrade::fail;
}

bool ContrastPair::nonTextPasses() const
{
    return ratio >= 3.0;
}

QString gradeText(TextGrade grade)
{
    switch (grade) {
    case TextGrade::aaa:
        return QStringLiteral("AAA");
    case TextGrade::aa:
        return QStringLiteral("AA");
    case TextGrade::fail:
        break;
    }
    return QStringLiteral("Fail");
}

QString nonTextGradeText(bool passes)
{
    return passes ? QStringLiteral("Pass") : QStringLiteral("Fail");
}

ApcaUse apcaUse(double lc)
{
    // The APCA guidance levels, for either polarity.
    const double size = std::abs(lc);
    if (size >= 75)
        return ApcaUse::bodyText;
    if (size >= 60)
        return ApcaUse::largeText;
    if (size >= 45)
        return ApcaUse::headlines;
    if (size >= 30)
        return ApcaUse::nonText;
    if (size >= 15)
        return ApcaUse::barelyVisible;
    return ApcaUse::invisible;
}

namespace {

const char *apcaUseSource(ApcaUse use)
{
    switch (use) {
    case ApcaUse::bodyText:
        return QT_TRANSLATE_NOOP("Contrast", "body text");
    case ApcaUse::largeText:
        return QT_TRANSLATE_NOOP("Contrast", "large or bold text");
    case ApcaUse::headlines:
        return QT_TRANSLATE_NOOP("Contrast", "headlines");
    case ApcaUse::nonText:
        return QT_TRANSLATE_NOOP("Contrast", "non-text only");
    case ApcaUse::barelyVisible:
        return QT_TRANSLATE_NOOP("Contrast", "dividers and disabled parts only");
    case ApcaUse::invisible:
        break;
    }
    return QT_TRANSLATE_NOOP("Contrast", "invisible");
}

} // namespace

QString apcaUseText(ApcaUse use)
{
    return QString::fromLatin1(apcaUseSource(use));
}

QString apcaUseLabel(ApcaUse use)
{
    return QCoreApplication::translate("Contrast", apcaUseSource(use));
}
