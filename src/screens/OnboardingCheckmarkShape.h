// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QRectF>

// The confirmation's check mark: an open path through (0.22 w, 0.5 h), (0.42 w, 0.65 h) and
// (0.75 w, 0.3 h) of its frame, y growing downwards.
struct OnboardingCheckmarkShape {
    static QPainterPath path(const QRectF &rect);
};
