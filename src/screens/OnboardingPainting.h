// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the welcome window's two screens share to lay themselves out and paint: its metrics,
// the entrance movement, the soft shadows and the layouts of both screens.
#include "screens/OnboardingView.h"
#include "screens/Theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <array>
#include <cmath>

namespace OnboardingPainting {

using Theme::withAlpha;

constexpr qreal bulletInset = 60;
constexpr qreal bulletSymbolFrame = 24;
constexpr qreal rowSpacing = 14;
// How far the welcome icon's glow reaches beyond its 120-point disc.
constexpr qreal glowBlur = 24;

// A part laid out left to right within `area`, put where it belongs when the interface reads
// right to left (the painter's direction is its widget's).
inline QRectF visualRect(const QPainter &painter, const QRectF &area, const QRectF &rect)
{
    if (painter.layoutDirection() != Qt::RightToLeft)
        return rect;
    return QRectF(area.left() + area.right() - rect.right(), rect.top(), rect.width(), rect.height());
}

inline QFont systemFont(int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

// An element that rises into place while fading in: `distance` points lower until shown.
inline void enter(QPainter &painter, qreal progress, qreal distance)
{
    painter.translate(0, distance * (1 - progress));
    painter.setOpacity(painter.opacity() * qBound(0.0, progress, 1.0));
}

// A blurred shadow of a rounded shape, built from concentric layers (a box blur's look, which
// is all a soft shadow under a button needs).
inline void paintShadow(QPainter &painter, const QRectF &shape, qreal cornerRadius, const QColor &color,
    qreal opacity, qreal radius, qreal offsetY)
{
    constexpr int layers = 8;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(color, 1 - std::pow(1 - opacity, 1.0 / layers)));
    for (int i = 0; i < layers; ++i) {
        const qreal grow = radius * (qreal(i) / (layers - 1) - 0.5);
        const QRectF layer = shape.adjusted(-grow, -grow, grow, grow).translated(0, offsetY);
        const qreal r = qMax(0.0, cornerRadius + grow);
        painter.drawRoundedRect(layer, r, r);
    }
}

inline qreal wrappedHeight(const QFont &font, const QString &string, qreal width)
{
    return QFontMetricsF(font).boundingRect(QRectF(0, 0, width, 10000), Qt::TextWordWrap, string).height();
}

} // namespace OnboardingPainting

struct OnboardingView::WelcomeLayout {
    qreal contentHeight; // everything but the two flexible spacers
    QRectF icon; // the glow's 120-point circle
    QRectF title;
    std::array<QRectF, 3> bullets; // each line's row
    QRectF button;
};

struct OnboardingView::ConfirmationLayout {
    qreal contentHeight; // everything but the two flexible spacers
    QPointF checkCentre;
    QRectF headline;
    QRectF subtext;
    QRectF card;
    QRectF button;
};
