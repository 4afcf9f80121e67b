// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingCheckmarkShape.h"

QPainterPath OnboardingCheckmarkShape::path(const QRectF &rect)
{
    const auto at = [&](qreal x, qreal y) {
        return QPointF(rect.left() + x * rect.width(), rect.top() + y * rect.height());
    };
    QPainterPath path(at(0.22, 0.5));
    path.lineTo(at(0.42, 0.65));
    path.lineTo(at(0.75, 0.3));
    return path;
}
