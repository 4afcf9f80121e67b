// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEasingCurve>

// The timing curves of the welcome window's choreography.

// A critically-less-than damped spring released from 0 towards 1, described the way designers
// tune it: `response` is the period of the undamped oscillation in seconds, `dampingFraction`
// the ratio to critical damping (1 = no overshoot, smaller = bouncier).
struct DampedSpring {
    double response = 0.6;
    double dampingFraction = 0.7;

    // Position at `seconds` after release: starts at 0, overshoots a little, settles at 1.
    double value(double seconds) const;
    // When the remaining swing is under a thousandth of the distance: the animation's length.
    double settlingSeconds() const;
};

namespace AnimationCurves {

QEasingCurve easeOut(); // cubic Bézier (0, 0, 0.58, 1)
QEasingCurve easeInOut(); // cubic Bézier (0.42, 0, 0.58, 1)

// The welcome icon's landing: DampedSpring{0.6, 0.7} over its settling time, ending at exactly 1.
QEasingCurve iconSpring();
int iconSpringMilliseconds();

// One loop of a pulse that eases in and out to 1 and back to 0, each way half the loop; a
// looping animation with this curve reverses on every repeat.
QEasingCurve easeInOutThereAndBack();

} // namespace AnimationCurves
