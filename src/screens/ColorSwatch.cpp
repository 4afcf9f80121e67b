// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorSwatch.h"

#include "screens/Theme.h"

#include <QPainter>
#include <QPainterPath>

ColorSwatch::ColorSwatch(double red, double green, double blue, int size, QWidget *parent)
    : QWidget(parent)
    , m_red(red)
    , m_green(green)
    , m_blue(blue)
    , m_size(size)
{
    setFixedSize(size, size);
}

QColor ColorSwatch::color() const
{
    // QColor clamps out-of-range components; the swatch can only show what the screen can.
    return QColor::fromRgbF(
        float(qBound(0.0, m_red, 1.0)), float(qBound(0.0, m_green, 1.0)), float(qBound(0.0, m_blue, 1.0)));
}

void ColorSwatch::paintSwatch(
    QPainter &painter, const QRectF &rect, const QColor &color, const QPalette &palette)
{
    const qreal radius = rect.width() * 0.2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QColor opaque = color;
    opaque.setAlphaF(1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(opaque);
    painter.drawRoundedRect(rect, radius, radius);
    // A 1-pixel stroke inset by half its width stays inside the square.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Theme::withAlpha(Theme::secondaryText(palette), 0.3), 1.0));
    const QRectF inner = rect.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(inner, radius - 0.5, radius - 0.5);
    painter.restore();
}

void ColorSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSwatch(painter, QRectF(0, 0, m_size, m_size), color(), palette());
}
