// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>
#include <optional>

// Seconds between the Unix epoch and the reference date 2001-01-01 00:00:00 UTC, the origin
// of every stored timestamp.
inline constexpr double referenceDateOffset = 978307200.0;

// One colour the user sampled from the screen. A plain value: identity is `id`; equality
// compares all eight fields, so a renamed copy is a different value of the same colour.
struct PickedColor {
    QUuid id;
    double red = 0; // sRGB components, nominally 0...1, stored exactly as sampled
    double green = 0;
    double blue = 0;
    double alpha = 1;
    std::optional<QString> name; // absent until named; never an empty text
    bool isPinned = false;
    double timestamp = 0; // seconds since the reference date (not the Unix epoch)

    // A new record for a sample: fresh random id, no name, unpinned, picked now.
    static PickedColor fromSample(double red, double green, double blue, double alpha);

    QString formatted(ColorFormat format) const { return formatColor(red, green, blue, alpha, format); }
    // The name when there is one that is not empty.
    bool hasName() const { return name && !name->isEmpty(); }

    bool operator==(const PickedColor &) const = default;
};

// Seconds since the reference date, now.
double referenceDateNow();
