// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusIcon.h"

#include <QPainter>
#include <QPainterPath>

namespace StatusIcon {

QColor tintFor(bool darkAppearance)
{
    return darkAppearance ? QColor(Qt::white) : QColor(Qt::black);
}

namespace {

// The eyedropper of the "eyedropper" symbol, drawn here rather than from its SVG: the start then
// needs no SVG renderer before the icon shows. The same figures as the symbol's drawing, in its
// 24-unit box turned by 45 degrees: the bulb, the collar and the tapering tube.
void paintEyedropper(QPainter &painter, const QColor &tint)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(symbolSize / 24.0, symbolSize / 24.0);
    painter.translate(12, 12);
    painter.rotate(45);
    painter.translate(-12, -12);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(9.5, -2, 5, 8), 2.5, 2.5);
    QPainterPath outline;
    outline.moveTo(7, 6.5);
    outline.lineTo(17, 6.5);
    outline.moveTo(9.25, 6.5);
    outline.lineTo(9.25, 19);
    outline.lineTo(12, 24.5);
    outline.lineTo(14.75, 19);
    outline.lineTo(14.75, 6.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(tint, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(outline);
    painter.restore();
}

QImage canvas(int width, qreal dpr)
{
    QImage image(qCeil(width * dpr), qCeil(canvasHeight * dpr), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(dpr);
    return image;
}

} // namespace

QImage plainIcon(bool darkAppearance, qreal devicePixelRatio)
{
    QImage image = canvas(symbolSize, devicePixelRatio);
    QPainter painter(&image);
    paintEyedropper(painter, tintFor(darkAppearance));
    return image;
}

QImage iconWithDot(bool darkAppearance, const QColor &dotColor, qreal devicePixelRatio)
{
    QImage image = canvas(canvasWidth, devicePixelRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintEyedropper(painter, tintFor(darkAppearance));
    QColor opaque = dotColor;
    opaque.setAlphaF(1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(opaque);
    painter.drawEllipse(QRectF(symbolSize + gap, (symbolSize - dotSize) * 0.5, dotSize, dotSize));
    return image;
}

} // namespace StatusIcon
