#pragma once

#include "history/ScreenColorSampler.h"

#include <QString>
#include <memory>

// The one place that decides which screen sampler the program uses.

enum class SamplerBackend { portal, x11, none };

// Wayland → the portal, X11 → our own sampler; VANTLE_SAMPLER=portal|x11 overrides either
// (for bug reports and tests). Our own sampler needs an X connection.
SamplerBackend chooseSamplerBackend(const QString &override, const QString &platformName,
                                    const QString &sessionType, bool hasX11Connection);

// The sampler for this process, from the environment and the running QGuiApplication.
std::unique_ptr<ScreenColorSampler> makeScreenColorSampler();
