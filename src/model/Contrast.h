// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// WCAG 2 contrast, as the detail screen shows it.

// Relative luminance of sRGB components (the WCAG threshold 0.03928), unclamped; alpha plays
// no part.
double relativeLuminance(double red, double green, double blue);

// (lighter + 0.05) / (darker + 0.05): 1.0 or more.
double contrastRatio(double luminance, double referenceLuminance);

// "AAA", "AA", "AA Large" or "Fail", tested on the unrounded ratio.
QString contrastLevel(double ratio);

// The ratio as "%.1f:1", e.g. "4.5:1".
QString contrastRatioText(double ratio);

inline constexpr double whiteLuminance = 1.0;
inline constexpr double blackLuminance = 0.0;
