// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NullScreenSampler.h"

void NullScreenSampler::pick(ColorFormat, Completion completion)
{
    QMetaObject::invokeMethod(
        this, [c = std::move(completion)] { c(std::nullopt); }, Qt::QueuedConnection);
}
