// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyle>

namespace Theme {

namespace {
bool highContrastOn = false;
// The palette the desktop's Qt theme gave, while one of ours stands in for it.
std::optional<QPalette> desktopPalette;

// The high-contrast tone of a hue: light under black text in a dark theme, deep under white.
QColor contrastTone(const QPalette &palette, QColor light, QColor deep)
{
    return isDark(palette) ? light : deep;
}
} // namespace

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5;
}

bool highContrast()
{
    return highContrastOn;
}

void setHighContrast(bool on)
{
    highContrastOn = on;
}

QPalette darkPalette()
{
    // The tones of the dark desktop themes (Adwaita dark, Breeze dark): grey surfaces, light
    // text, a blue selection.
    const QColor window(0x2D, 0x2D, 0x2D), base(0x1E, 0x1E, 0x1E), text(0xEE, 0xEE, 0xEE);
    const QColor disabledText(0x80, 0x80, 0x80), highlight(0x35, 0x84, 0xE4);
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window.lighter(115));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x3A, 0x3A, 0x3A));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0x40, 0x40, 0x40));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, highlight.lighter(130));
    palette.setColor(QPalette::BrightText, QColor(0xFF, 0x7B, 0x63));
    for (const QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, disabledText);
    return palette;
}

void followColorScheme(std::optional<bool> dark)
{
    const QPalette given = desktopPalette.value_or(QApplication::palette());
    if (!dark || *dark == isDark(given)) {
        if (desktopPalette) {
            desktopPalette.reset();
            QApplication::setPalette(given);
        }
        return;
    }
    desktopPalette = given;
    if (*dark)
        QApplication::setPalette(darkPalette());
    else
        QApplication::setPalette(QApplication::style()->standardPalette());
}

QColor withAlpha(QColor color, qreal alpha)
{
    color.setAlphaF(float(color.alphaF() * qBound(0.0, alpha, 1.0)));
    return color;
}

QColor text(const QPalette &palette)
{
    return palette.color(QPalette::WindowText);
}

QColor secondaryText(const QPalette &palette)
{
    return highContrastOn ? text(palette) : withAlpha(text(palette), 0.62);
}

// Tertiary text is lighter than secondary, but not so faint that hints vanish on grey panels.
QColor tertiaryText(const QPalette &palette)
{
    return highContrastOn ? text(palette) : withAlpha(text(palette), 0.42);
}

QColor controlBackground(const QPalette &palette)
{
    return palette.color(QPalette::Base);
}

QColor orange(const QPalette &palette)
{
    if (highContrastOn)
        return contrastTone(palette, QColor(0xFF, 0xAA, 0x50), QColor(0x80, 0x38, 0x00));
    return isDark(palette) ? QColor(0xF5, 0x8A, 0x0B) : QColor(0xEE, 0x7A, 0x00);
}

QColor green(const QPalette &palette)
{
    if (highContrastOn)
        return contrastTone(palette, QColor(0x5F, 0xD6, 0x8A), QColor(0x00, 0x5C, 0x26));
    return isDark(palette) ? QColor(0x2E, 0xA8, 0x4F) : QColor(0x1F, 0x9A, 0x46);
}

QColor red(const QPalette &palette)
{
    if (highContrastOn)
        return contrastTone(palette, QColor(0xFF, 0xA3, 0x9A), QColor(0x96, 0x00, 0x18));
    return isDark(palette) ? QColor(0xE8, 0x45, 0x3C) : QColor(0xD9, 0x35, 0x2C);
}

QColor levelColor(const QString &level, const QPalette &palette)
{
    if (level == QLatin1String("AAA") || level == QLatin1String("AA"))
        return green(palette);
    if (level == QLatin1String("AA Large"))
        return orange(palette);
    return red(palette);
}

QColor onAccent(const QPalette &palette)
{
    return highContrastOn && isDark(palette) ? QColor(Qt::black) : QColor(Qt::white);
}

QColor accent(const QPalette &palette)
{
    return highContrastOn ? orange(palette) : QColor(0xFF, 0x95, 0x00);
}

QColor destructive(const QPalette &palette)
{
    return highContrastOn ? red(palette) : QColor(0xE5, 0x3B, 0x30);
}

QFont font(int pixelSize, QFont::Weight weight)
{
    QFont f = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    f.setPixelSize(pixelSize);
    f.setWeight(weight);
    return f;
}

QFont monospacedFont(int pixelSize, QFont::Weight weight)
{
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPixelSize(pixelSize);
    f.setWeight(weight);
    return f;
}

QFont withPixelSize(QFont font, int pixelSize, bool bold)
{
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

} // namespace Theme
