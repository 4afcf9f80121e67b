// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Theme.h"

#include <QFontDatabase>
#include <QPalette>

namespace Theme {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5;
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
    return withAlpha(text(palette), 0.62);
}

// Tertiary text is lighter than secondary, but not so faint that hints vanish on grey panels.
QColor tertiaryText(const QPalette &palette)
{
    return withAlpha(text(palette), 0.42);
}

QColor controlBackground(const QPalette &palette)
{
    return palette.color(QPalette::Base);
}

QColor orange(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xF5, 0x8A, 0x0B) : QColor(0xEE, 0x7A, 0x00);
}

QColor green(const QPalette &palette)
{
    return isDark(palette) ? QColor(0x2E, 0xA8, 0x4F) : QColor(0x1F, 0x9A, 0x46);
}

QColor red(const QPalette &palette)
{
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
