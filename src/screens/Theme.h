// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <optional>

class QPalette;

// Every colour and type style of Vantle's screens, in one place. The popup and the settings
// window map onto the desktop theme: text shades come from the widget's QPalette so light and
// dark themes both read well; the few fixed hues (the orange accent, the level greens and reds)
// are chosen here once, a little deeper than pure "system" tones so white text on them stays
// legible. The welcome window has a fixed dark palette of its own, whatever the theme.
//
// When the desktop asks for higher contrast, the quieter shades are drawn in the full text colour
// of the desktop's palette, and the fixed hues take tones that read at 7:1 or more: deep tones
// under white text in a light theme, light tones under black text in a dark one.
namespace Theme {

bool isDark(const QPalette &palette);
bool highContrast();
void setHighContrast(bool on);

// Every window follows the desktop's light or dark wish: where the palette the desktop's Qt
// theme gave does not match it, the application takes a dark (or light) palette of the same
// kind, and gives the desktop's back once the wish matches it again or goes (none: no wish).
void followColorScheme(std::optional<bool> dark);
// The palette for a dark wish on a desktop whose Qt theme gives a light one.
QPalette darkPalette();

// Label styles: primary text, then two quieter shades for secondary and tertiary text.
QColor text(const QPalette &palette);
QColor secondaryText(const QPalette &palette);
QColor tertiaryText(const QPalette &palette);
// The grouped-content background behind the detail screen's format list.
QColor controlBackground(const QPalette &palette);

QColor orange(const QPalette &palette);
QColor green(const QPalette &palette);
QColor red(const QPalette &palette);
// The capsule colour of a contrast level: green for "AAA" and "AA", orange for "AA Large", red
// for anything else.
QColor levelColor(const QString &level, const QPalette &palette);

// The text drawn on a fill of orange, green, red or the accent: white, or black on the light
// tones of a dark theme in high contrast.
QColor onAccent(const QPalette &palette);

// `color` with its opacity multiplied by `alpha` (0...1).
QColor withAlpha(QColor color, qreal alpha);

// The settings window's accent, the desktop's orange (#FF9500): selected tabs, the About
// symbol, links.
QColor accent(const QPalette &palette);

// Destructive actions ("Clear History").
QColor destructive(const QPalette &palette);

// The welcome window's own colours.
namespace Welcome {
inline const QColor background(0x0D, 0x11, 0x17);
inline const QColor card(0x16, 0x1B, 0x22);
inline const QColor border(0x30, 0x36, 0x3D);
inline const QColor text(0xC9, 0xD1, 0xD9);
inline const QColor mutedText(0x8B, 0x94, 0x9E);
inline const QColor accent(0xFF, 0x6B, 0x35);
inline const QColor success(0x34, 0xC7, 0x59);
} // namespace Welcome

// The system font and the system's fixed-pitch font at a size in logical pixels.
QFont font(int pixelSize, QFont::Weight weight = QFont::Normal);
QFont monospacedFont(int pixelSize, QFont::Weight weight = QFont::Normal);
// `font` at a size in logical pixels, bold or not.
QFont withPixelSize(QFont font, int pixelSize, bool bold = false);

} // namespace Theme
