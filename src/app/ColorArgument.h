// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include <QList>
#include <QString>
#include <optional>

// Colours and formats as people type them on the command line.

struct ColorComponents {
    double red, green, blue, alpha;
};

// Every text Vantle writes in its nine formats (so a copied colour can be fed back), the CSS
// "#RGB", "RRGGBB", or decimal sRGB components "r,g,b" or "r,g,b,a" (alpha 1 when left out;
// blanks around the numbers allowed). Numbers are read exactly, values outside 0...1 are
// accepted as in a stored colour; "nan" and "inf" are not.
std::optional<ColorComponents> parseColorArgument(const QString &text);

// A command-line word that is none of the command's options: appended to `colors` when it is a
// colour ("-0.5,0,0" is one), else the one-line reason why not (an unknown option, or text that
// is no colour).
std::optional<QString> appendColorWord(const QString &word, QList<ColorComponents> &colors);

// A format by its raw value ("HSL", "Hex (lowercase)") or its case name ("hsl", "hexLower"),
// either case-insensitively.
std::optional<ColorFormat> parseFormatArgument(const QString &text);

// What the two parsers accept, for error messages.
QString acceptedColorsText();
QString acceptedFormatsText();
