// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/AnimationCurves.h"

#include <QPointF>

#include <cmath>
#include <numbers>

double DampedSpring::value(double seconds) const
{
    const double omega = 2 * std::numbers::pi / response;
    const double zeta = dampingFraction;
    if (seconds <= 0)
        return 0;
    if (zeta >= 1) { // critically damped or slower: no overshoot
        return 1 - std::exp(-omega * seconds) * (1 + omega * seconds);
    }
    const double dampedOmega = omega * std::sqrt(1 - zeta * zeta);
    const double decay = std::exp(-zeta * omega * seconds);
    return 1
        - decay
        * (std::cos(dampedOmega * seconds) + zeta * omega / dampedOmega * std::sin(dampedOmega * seconds));
}

double DampedSpring::settlingSeconds() const
{
    const double omega = 2 * std::numbers::pi / response;
    return std::log(1000.0) / (std::min(dampingFraction, 1.0) * omega);
}

namespace {

constexpr DampedSpring iconSpringParameters { 0.6, 0.7 };

QEasingCurve bezier(double x1, double y1, double x2, double y2)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(x1, y1), QPointF(x2, y2), QPointF(1, 1));
    return curve;
}

// QEasingCurve takes a plain function, so the curves it needs live here.
qreal iconSpringProgress(qreal progress)
{
    if (progress >= 1)
        return 1;
    return iconSpringParameters.value(progress * iconSpringParameters.settlingSeconds());
}

qreal thereAndBackProgress(qreal progress)
{
    static const QEasingCurve curve = AnimationCurves::easeInOut();
    const qreal way = progress < 0.5 ? 2 * progress : 2 - 2 * progress;
    return curve.valueForProgress(way);
}

} // namespace

namespace AnimationCurves {

QEasingCurve easeOut()
{
    return bezier(0, 0, 0.58, 1);
}

QEasingCurve easeInOut()
{
    return bezier(0.42, 0, 0.58, 1);
}

QEasingCurve iconSpring()
{
    QEasingCurve curve;
    curve.setCustomType(iconSpringProgress);
    return curve;
}

int iconSpringMilliseconds()
{
    return int(std::lround(iconSpringParameters.settlingSeconds() * 1000));
}

QEasingCurve easeInOutThereAndBack()
{
    QEasingCurve curve;
    curve.setCustomType(thereAndBackProgress);
    return curve;
}

} // namespace AnimationCurves
