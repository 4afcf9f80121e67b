#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

// The few colours and fonts the settings window shares between its pages and tab bar.
namespace SettingsStyle {

// The product's accent: the desktop's orange (#FF9500), on selected tabs, the About symbol and
// links.
inline QColor accent()
{
    return QColor(0xFF, 0x95, 0x00);
}

// For destructive actions ("Clear History").
inline QColor destructive()
{
    return QColor(0xE5, 0x3B, 0x30);
}

// Secondary text: the window's text colour at reduced strength, so it works in light and dark.
inline QColor secondary(const QPalette &palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.6);
    return color;
}

inline QFont withPixelSize(QFont font, int pixelSize, bool bold = false)
{
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

} // namespace SettingsStyle
