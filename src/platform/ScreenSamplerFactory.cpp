#include "platform/ScreenSamplerFactory.h"

#include "platform/NullScreenSampler.h"
#include "platform/PortalScreenSampler.h"
#include "platform/X11ScreenSampler.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

SamplerBackend chooseSamplerBackend(const QString &override, const QString &platformName,
                                    const QString &sessionType, bool hasX11Connection)
{
    const QString forced = override.trimmed().toLower();
    if (forced == u"portal")
        return SamplerBackend::portal;
    if (forced == u"x11")
        return hasX11Connection ? SamplerBackend::x11 : SamplerBackend::none;
    if (platformName.startsWith(QStringLiteral("wayland")))
        return SamplerBackend::portal;
    if (hasX11Connection)
        // XWayland still gives us an X connection, but only the portal can see the screen.
        return sessionType.compare(QStringLiteral("wayland"), Qt::CaseInsensitive) == 0 ? SamplerBackend::portal
                                                                                       : SamplerBackend::x11;
    return sessionType.compare(QStringLiteral("wayland"), Qt::CaseInsensitive) == 0 ? SamplerBackend::portal
                                                                                   : SamplerBackend::none;
}

std::unique_ptr<ScreenColorSampler> makeScreenColorSampler()
{
    xcb_connection_t *connection = nullptr;
    if (auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr)
        connection = x11->connection();
    const SamplerBackend backend = chooseSamplerBackend(
        qEnvironmentVariable("VANTLE_SAMPLER"), QGuiApplication::platformName(),
        qEnvironmentVariable("XDG_SESSION_TYPE"), connection != nullptr);
    switch (backend) {
    case SamplerBackend::portal:
        return std::make_unique<PortalScreenSampler>(QDBusConnection::sessionBus());
    case SamplerBackend::x11:
        return std::make_unique<X11ScreenSampler>(connection);
    case SamplerBackend::none:
        break;
    }
    return std::make_unique<NullScreenSampler>();
}
