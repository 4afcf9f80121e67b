// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/TrimmedPath.h"

#include <QLineF>
#include <QPolygonF>

QPainterPath trimmedPath(const QPainterPath &path, qreal fraction)
{
    QPainterPath trimmed;
    if (fraction <= 0 || path.isEmpty())
        return trimmed;
    if (fraction >= 1)
        return path;
    qreal remaining = path.length() * fraction;
    for (const QPolygonF &polygon : path.toSubpathPolygons()) {
        if (polygon.isEmpty())
            continue;
        trimmed.moveTo(polygon.first());
        for (qsizetype i = 1; i < polygon.size(); ++i) {
            const QLineF segment(polygon[i - 1], polygon[i]);
            if (segment.length() >= remaining) {
                trimmed.lineTo(segment.pointAt(segment.length() > 0 ? remaining / segment.length() : 0));
                return trimmed;
            }
            remaining -= segment.length();
            trimmed.lineTo(polygon[i]);
        }
    }
    return trimmed;
}
