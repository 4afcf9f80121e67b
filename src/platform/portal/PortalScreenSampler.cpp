// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalScreenSampler.h"

#include "platform/portal/PortalRequest.h"
#include "platform/portal/PortalSignals.h"

#include <QDBusArgument>

namespace {

std::optional<SampledColor> colorFromResults(const QVariantMap &results)
{
    const QVariant value = results.value(QStringLiteral("color"));
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const QDBusArgument argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != u"(ddd)")
        return std::nullopt;
    SampledColor color;
    // The components as the portal sends them: doubles, never rounded to 8 bits here.
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return color;
}

} // namespace

PortalScreenSampler::PortalScreenSampler(const QDBusConnection &bus)
    : m_bus(bus)
{
}

PortalScreenSampler::~PortalScreenSampler()
{
    if (m_isPicking)
        finish(std::nullopt);
}

void PortalScreenSampler::pick(ColorFormat, Completion completion)
{
    if (m_isPicking || !m_bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [c = std::move(completion)] { c(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    m_isPicking = true;
    m_completion = std::move(completion);
    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath,
        QStringLiteral("org.freedesktop.portal.Screenshot"), QStringLiteral("PickColor"));
    call << QString(); // no parent window
    PortalRequest::send(m_bus, call, {}, this, [this](const PortalRequest::Result &result) {
        finish(result.response == PortalRequest::Response::success ? colorFromResults(result.results)
                                                                   : std::nullopt);
    });
}

void PortalScreenSampler::finish(std::optional<SampledColor> result)
{
    m_isPicking = false;
    Completion completion = std::move(m_completion);
    m_completion = nullptr;
    completion(result);
}
