// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusIcon.h"

#include "screens/Symbols.h"

#include <QPainter>

namespace StatusIcon {

QColor tintFor(bool darkAppearance)
{
    return darkAppearance ? QColor(Qt::white) : QColor(Qt::black);
}

namespace {

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
    Symbols::paint(
        painter, QRectF(0, 0, symbolSize, symbolSize), QStringLiteral("eyedropper"), tintFor(darkAppearance));
    return image;
}

QImage iconWithDot(bool darkAppearance, const QColor &dotColor, qreal devicePixelRatio)
{
    QImage image = canvas(canvasWidth, devicePixelRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Symbols::paint(
        painter, QRectF(0, 0, symbolSize, symbolSize), QStringLiteral("eyedropper"), tintFor(darkAppearance));
    QColor opaque = dotColor;
    opaque.setAlphaF(1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(opaque);
    painter.drawEllipse(QRectF(symbolSize + gap, (symbolSize - dotSize) * 0.5, dotSize, dotSize));
    return image;
}

} // namespace StatusIcon
