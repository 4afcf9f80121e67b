// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/SamplerGeometry.h"

#include <QByteArray>
#include <QString>

#include <memory>

// Turns a pixel of a monitor into the sRGB colour that monitor shows for it, by the monitor's
// colour profile. Built once per profile; converting one colour is cheap enough for every pick
// and every redraw of the loupe's label.
class DisplayColorConversion {
public:
    virtual ~DisplayColorConversion() = default;
    // `pixel`: the framebuffer's components, 0...1. The result is sRGB and may lie outside 0...1
    // where the monitor shows colours beyond sRGB.
    virtual SamplerGeometry::Rgb toSrgb(const SamplerGeometry::Rgb &pixel) const = 0;

    struct Built {
        std::unique_ptr<DisplayColorConversion> conversion; // null when the profile is unusable
        QString failure; // why, when it is
    };
    // From the bytes of an ICC profile: relative colorimetric, in floating point and unbounded.
    // Only an RGB display profile gives a conversion.
    static Built fromIccProfile(const QByteArray &profile);
    // The same through the colour module, which carries littleCMS and is loaded on the first call:
    // what the sampler uses, so that only a desktop with profiles maps it.
    static Built loadedFromIccProfile(const QByteArray &profile);

    // The colour module's one entry point: fromIccProfile(*profile) into *built.
    static constexpr char moduleEntry[] = "vantleColorConversionFromIccProfile";
    using ModuleEntry = void (*)(const QByteArray *profile, Built *built);
};
