// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include <functional>
#include <optional>

// One colour sampled from the screen: sRGB components, nominally 0...1, exactly as delivered.
struct SampledColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
};

// Shows a colour picker over the whole screen and reports the colour the user chose.
//
// A backend must guarantee:
// - `completion` runs exactly once per pick(), on the main thread, and never inside pick()
//   itself (always after pick() has returned);
// - it carries the sRGB components of the chosen pixel, or nothing when the user cancelled,
//   the picker could not be shown, or the facility is missing;
// - pick() never blocks and never spins a nested event loop.
class ScreenColorSampler {
public:
    using Completion = std::function<void(std::optional<SampledColor>)>;

    virtual ~ScreenColorSampler() = default;
    // `labelFormat`: how a picker that labels the colour under the pointer writes it.
    virtual void pick(ColorFormat labelFormat, Completion completion) = 0;
};
