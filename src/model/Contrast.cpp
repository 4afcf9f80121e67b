// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Contrast.h"

#include "model/NumberText.h"

#include <algorithm>
#include <cmath>

namespace {

double linearised(double c)
{
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

} // namespace

double relativeLuminance(double red, double green, double blue)
{
    return 0.2126 * linearised(red) + 0.7152 * linearised(green) + 0.0722 * linearised(blue);
}

double contrastRatio(double luminance, double referenceLuminance)
{
    const double lighter = std::max(luminance, referenceLuminance);
    const double darker = std::min(luminance, referenceLuminance);
    return (lighter + 0.05) / (darker + 0.05);
}

QString contrastLevel(double ratio)
{
    if (ratio >= 7.0)
        return QStringLiteral("AAA");
    if (ratio >= 4.5)
        return QStringLiteral("AA");
    if (ratio >= 3.0)
        return QStringLiteral("AA Large");
    return QStringLiteral("Fail");
}

QString contrastRatioText(double ratio)
{
    return NumberText::fixed(ratio, 1) + QStringLiteral(":1");
}
