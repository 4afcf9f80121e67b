// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The contrast of a foreground (text, an icon, a border) on the background under it, graded by
// WCAG 2 and measured by APCA, the method of the WCAG 3 drafts.

struct OpaqueColor {
    double red = 0, green = 0, blue = 0; // sRGB components, nominally 0...1

    bool operator==(const OpaqueColor &) const = default;
};

// A foreground with alpha below 1 as a browser draws it on an opaque background: each sRGB
// component mixed by alpha, with no conversion to linear light.
OpaqueColor compositedOnto(
    double red, double green, double blue, double alpha, const OpaqueColor &background);

// A WCAG 2 grade for text: "AAA", "AA" or "Fail".
enum class TextGrade { fail, aa, aaa };
QString gradeText(TextGrade grade);
// The non-text grade (WCAG 2.1, 1.4.11): "Pass" or "Fail".
QString nonTextGradeText(bool passes);

// What an APCA lightness contrast is enough for, by its size.
enum class ApcaUse { invisible, barelyVisible, nonText, headlines, largeText, bodyText };
ApcaUse apcaUse(double lc);
// The plain reading of an APCA use, e.g. "body text", in English: the command line prints it
// for scripts.
QString apcaUseText(ApcaUse use);
// The same words as people read them, in their language.
QString apcaUseLabel(ApcaUse use);

struct ContrastPair {
    OpaqueColor foreground; // after compositing
    OpaqueColor background;
    double ratio = 1; // WCAG 2, 1.0 to 21.0
    double apcaLc = 0; // signed: negative for light text on a dark background

    // Graded on the unrounded ratio, each threshold reached inclusively.
    TextGrade normalText() const; // AA at 4.5, AAA at 7
    TextGrade largeText() const; // AA at 3, AAA at 4.5
    bool nonTextPasses() const; // at 3
};

ContrastPair measureContrast(
    double red, double green, double blue, double alpha, const OpaqueColor &background);

// APCA-W3 0.0.98G-4g lightness contrast Lc of opaque text on its background, in about -108...106.
double apcaContrast(const OpaqueColor &text, const OpaqueColor &background);
