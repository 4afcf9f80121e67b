#include "platform/NullScreenSampler.h"

void NullScreenSampler::pick(Completion completion)
{
    QMetaObject::invokeMethod(this, [c = std::move(completion)] { c(std::nullopt); }, Qt::QueuedConnection);
}
