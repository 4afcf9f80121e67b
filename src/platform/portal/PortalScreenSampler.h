// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/ScreenColorSampler.h"

#include <QDBusConnection>
#include <QObject>

// The desktop's own colour picker through the XDG desktop portal (Wayland, where no client may
// read the screen, and any desktop that offers it): org.freedesktop.portal.Screenshot.PickColor.
//
// Everything is asynchronous (a PortalRequest): a missing portal or an error ends the pick with
// nothing, quietly, as a cancel does.
class PortalScreenSampler : public QObject, public ScreenColorSampler {
    Q_OBJECT
public:
    explicit PortalScreenSampler(const QDBusConnection &bus);
    ~PortalScreenSampler() override;

    void pick(ColorFormat labelFormat, Completion completion) override;

private:
    void finish(std::optional<SampledColor> result);

    QDBusConnection m_bus;
    Completion m_completion;
    bool m_isPicking = false;
};
