// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// One colour as a rounded square with a faint inner outline, so white stays visible on white.
// Always opaque: the swatch shows the colour, not its alpha.
class ColorSwatch : public QWidget {
    Q_OBJECT
public:
    ColorSwatch(double red, double green, double blue, int size, QWidget *parent = nullptr);

    QColor color() const;
    int swatchSize() const { return m_size; }

    // Draws a swatch of side rect.width() at rect's top-left.
    static void paintSwatch(
        QPainter &painter, const QRectF &rect, const QColor &color, const QPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_red;
    double m_green;
    double m_blue;
    int m_size;
};
