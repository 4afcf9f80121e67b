// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SamplerLoupe.h"

#include "platform/x11/SamplerGeometry.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

constexpr double lensDiameterPoints = 132;
constexpr double gapPoints = 18;
constexpr double labelSpacingPoints = 6;
constexpr double labelPaddingPoints = 6;
constexpr double fontPixelSize = 13;

int devicePixels(double points, double scale)
{
    return std::max(1, int(std::lround(points * scale)));
}

} // namespace

SamplerLoupe::SamplerLoupe(double scale)
    : m_scale(scale)
    , m_diameter(devicePixels(lensDiameterPoints, scale))
    , m_gap(devicePixels(gapPoints, scale))
    , m_labelSpacing(devicePixels(labelSpacingPoints, scale))
    , m_labelPadding(devicePixels(labelPaddingPoints, scale))
{
    m_font.setPixelSize(devicePixels(fontPixelSize, scale));
    m_font.setStyleHint(QFont::Monospace);
    m_font.setFamily(QStringLiteral("monospace"));
}

QSize SamplerLoupe::boxSize(const QString &text) const
{
    if (text.isEmpty())
        return { m_diameter, m_diameter }; // no label, and no font loaded for one
    const QFontMetrics metrics(m_font);
    const int labelWidth = metrics.horizontalAdvance(text) + 2 * m_labelPadding;
    const int labelHeight = metrics.height() + m_labelPadding;
    return { std::max(m_diameter, labelWidth), m_diameter + m_labelSpacing + labelHeight };
}

QImage SamplerLoupe::render(const QImage &frozen, const QPoint &centre, int zoom, const QString &text) const
{
    const QSize box = boxSize(text);
    QImage image(box, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);

    const int across = SamplerGeometry::loupePixelsAcross(m_diameter, zoom);
    const int half = across / 2;
    const QRect lens((box.width() - m_diameter) / 2, 0, m_diameter, m_diameter);
    // The hotspot cell's top-left corner: the cell straddles the lens centre.
    const QPoint hotCell(lens.left() + (m_diameter - zoom) / 2, lens.top() + (m_diameter - zoom) / 2);
    const QPoint gridOrigin = hotCell - QPoint(half * zoom, half * zoom);

    QPainterPath circle;
    circle.addEllipse(QRectF(lens));
    painter.save();
    painter.setClipPath(circle);
    // Nearest-neighbour scaling (no SmoothPixmapTransform) at a whole factor: each frozen
    // pixel becomes an exact zoom x zoom square.
    const QImage patch = frozen.copy(QRect(centre - QPoint(half, half), QSize(across, across)));
    painter.drawImage(QRect(gridOrigin, QSize(across * zoom, across * zoom)), patch);
    if (zoom >= 6) {
        // Grid lines on the first column and row of every cell: light enough to read the
        // colours through, dark enough to count pixels on any background.
        QList<QLine> lines;
        for (int i = 0; i <= across; ++i) {
            const int x = gridOrigin.x() + i * zoom;
            const int y = gridOrigin.y() + i * zoom;
            lines << QLine(x, lens.top(), x, lens.bottom()) << QLine(lens.left(), y, lens.right(), y);
        }
        painter.setPen(QPen(QColor(0, 0, 0, 46), 0));
        painter.drawLines(lines);
    }
    // The hotspot: framed white inside black, so that it shows on every colour; the frame
    // sits around the cell and never eats into it, even at the smallest zoom.
    const QRect hot(hotCell, QSize(zoom, zoom));
    const int line = std::max(1, int(std::lround(m_scale)));
    painter.fillRect(hot.adjusted(-2 * line, -2 * line, 2 * line, 2 * line), Qt::black);
    painter.fillRect(hot.adjusted(-line, -line, line, line), Qt::white);
    painter.fillRect(hot, QColor(patch.pixel(half, half)));
    painter.restore();

    painter.setRenderHint(QPainter::Antialiasing);
    const double ring = std::max(1.0, 2 * m_scale);
    painter.setPen(QPen(QColor(255, 255, 255, 230), ring));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(lens).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2));
    painter.setPen(QPen(QColor(0, 0, 0, 160), std::max(1.0, m_scale)));
    painter.drawEllipse(QRectF(lens).adjusted(0.5, 0.5, -0.5, -0.5));

    if (text.isEmpty()) {
        painter.end();
        return image;
    }
    const QFontMetrics metrics(m_font);
    const QSize label(
        metrics.horizontalAdvance(text) + 2 * m_labelPadding, metrics.height() + m_labelPadding);
    const QRectF pill(QPointF((box.width() - label.width()) / 2.0, m_diameter + m_labelSpacing), label);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 20, 20, 225));
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setFont(m_font);
    painter.setPen(Qt::white);
    painter.drawText(pill, Qt::AlignCenter, text);
    return image;
}
