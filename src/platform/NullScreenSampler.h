// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/ScreenColorSampler.h"

#include <QObject>

// The sampler where the desktop offers none we can use (no X server, no portal): every pick
// ends with nothing, as a cancel does, after pick() has returned.
class NullScreenSampler : public QObject, public ScreenColorSampler {
    Q_OBJECT
public:
    void pick(ColorFormat labelFormat, Completion completion) override;
};
