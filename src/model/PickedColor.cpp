// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/PickedColor.h"

#include <QDateTime>

PickedColor PickedColor::fromSample(double red, double green, double blue, double alpha)
{
    PickedColor color;
    color.id = QUuid::createUuid();
    color.red = red;
    color.green = green;
    color.blue = blue;
    color.alpha = alpha;
    color.timestamp = referenceDateNow();
    return color;
}

double referenceDateNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0 - referenceDateOffset;
}
