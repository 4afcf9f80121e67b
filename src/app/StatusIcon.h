// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <optional>

// The tray icon: the eyedropper symbol, and with the colour dot a 30 × 18 canvas holding the
// 18 × 18 symbol, a 4-point gap and an 8-point dot of the last picked colour, vertically
// centred. The symbol is tinted white on dark panels and black on light ones.
namespace StatusIcon {

inline constexpr int canvasWidth = 30;
inline constexpr int canvasHeight = 18;
inline constexpr int symbolSize = 18;
inline constexpr int dotSize = 8;
inline constexpr int gap = 4;

QColor tintFor(bool darkAppearance);

// The plain symbol (18 × 18 logical pixels).
QImage plainIcon(bool darkAppearance, qreal devicePixelRatio = 1.0);

// The symbol with a dot of `dotColor` (its alpha ignored: the dot is always opaque).
QImage iconWithDot(bool darkAppearance, const QColor &dotColor, qreal devicePixelRatio = 1.0);

} // namespace StatusIcon
