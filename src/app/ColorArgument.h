// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include <QString>
#include <optional>

// Colours and formats as people type them on the command line.

struct ColorComponents {
    double red, green, blue, alpha;
};

// "#RRGGBB" or "RRGGBB" (alpha 1), or decimal sRGB components "r,g,b" or "r,g,b,a" (alpha 1
// when left out; blanks around the numbers allowed). Numbers are read exactly, values outside
// 0...1 are accepted as in a stored colour; "nan" and "inf" are not.
std::optional<ColorComponents> parseColorArgument(const QString &text);

// A format by its raw value ("HSL", "Hex (lowercase)") or its case name ("hsl", "hexLower"),
// either case-insensitively.
std::optional<ColorFormat> parseFormatArgument(const QString &text);

// What the two parsers accept, for error messages.
QString acceptedColorsText();
QString acceptedFormatsText();
