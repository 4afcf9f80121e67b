#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPalette;

// The popup's colours and type styles, mapped onto the desktop theme. Text shades come from the
// widget's QPalette so light and dark themes both read well; the few fixed hues (the orange
// accent, the level greens and reds) are chosen here once, a little deeper than pure "system"
// tones so white text on them stays legible.
namespace Theme {

bool isDark(const QPalette &palette);

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

QColor withAlpha(QColor color, qreal alpha);

// The system font and the system's fixed-pitch font at a size in logical pixels.
QFont font(int pixelSize, QFont::Weight weight = QFont::Normal);
QFont monospacedFont(int pixelSize, QFont::Weight weight = QFont::Normal);

} // namespace Theme
