// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRectF>
#include <QString>
#include <QWidget>

class QPainter;

// The product's monochrome symbols ("eyedropper", "pin.fill", "gearshape", …), drawn from the
// SVG files in data/symbols (compiled in as resources) and tinted to any colour. An unknown
// name draws nothing.
namespace Symbols {

// Paints the symbol scaled into `rect` (aspect kept, centred) in `color`.
void paint(QPainter &painter, const QRectF &rect, const QString &name, const QColor &color);

// The symbol as a square pixmap of `size` logical pixels for a device pixel ratio.
QPixmap pixmap(const QString &name, int size, const QColor &color, qreal devicePixelRatio = 1.0);

// An icon with crisp pixmaps at 1x and 2x.
QIcon icon(const QString &name, int size, const QColor &color);

bool exists(const QString &name);

} // namespace Symbols

// A symbol shown on its own, `size` logical pixels square, tinted by a function of the palette:
// painted afresh each time, so it follows a switch between light and dark, higher contrast and
// a move to a screen of another scale.
class SymbolLabel : public QWidget {
    Q_OBJECT
public:
    using ColorRole = QColor (*)(const QPalette &);

    SymbolLabel(const QString &symbol, int size, ColorRole color, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    ColorRole m_color;
};
