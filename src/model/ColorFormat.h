// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <array>
#include <optional>

// The nine text forms of a colour. The raw value is at once the label shown to the user, the
// value stored in the "colorFormat" preference and the format's identity.
enum class ColorFormat { hex, hexLower, rgb, rgbDecimal, hsl, hsb, swiftUI, uiColor, css };

// Declaration order: the detail screen and the settings picker follow it.
inline constexpr std::array<ColorFormat, 9> allColorFormats = {
    ColorFormat::hex,
    ColorFormat::hexLower,
    ColorFormat::rgb,
    ColorFormat::rgbDecimal,
    ColorFormat::hsl,
    ColorFormat::hsb,
    ColorFormat::swiftUI,
    ColorFormat::uiColor,
    ColorFormat::css,
};

QString rawValue(ColorFormat format);
// A sentence of the person's language with colour texts for its %1, %2…: in a right-to-left
// sentence each colour text is marked left to right, so its # and parentheses stay in place.
QString colorSentence(const QString &sentence, const QStringList &colorTexts);
// The format's name as people read it ("Hex", "RGB (decimal)"), in their language.
QString formatLabel(ColorFormat format);
// The identifier-style case name ("hexLower"), used by the command line.
QString caseName(ColorFormat format);
// Exact, case-sensitive match against the nine raw values.
std::optional<ColorFormat> colorFormatFromRawValue(const QString &raw);

// Component * 255, rounded halves away from zero, clamped to 0...255.
int eightBitChannel(double component);

struct HueSaturationValue {
    double hue; // degrees, not wrapped
    double saturation; // percent, not clamped
    double third; // lightness (HSL) or brightness (HSB), percent
};
HueSaturationValue toHsl(double r, double g, double b);
HueSaturationValue toHsb(double r, double g, double b);

// The text of a colour in a format; a pure function of the components.
QString formatColor(double r, double g, double b, double a, ColorFormat format);

// Component helpers with exactly the texts of the hex, rgb and hsl formats.
QString hexText(double r, double g, double b);
QString rgbText(double r, double g, double b);
QString hslText(double r, double g, double b);
