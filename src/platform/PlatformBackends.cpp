// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlatformBackends.h"

#include "platform/NullScreenSampler.h"
#include "platform/QtClipboard.h"
#include "platform/portal/PortalScreenSampler.h"
#include "platform/portal/PortalShortcutBackend.h"
#include "platform/wayland/WaylandDataControlClipboard.h"
#include "platform/x11/X11ScreenSampler.h"
#include "platform/x11/XcbShortcutBackend.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lcClipboard, "vantle.clipboard")
}

std::unique_ptr<ScreenColorSampler> makeScreenColorSampler(const DesktopSession &session)
{
    switch (chooseBackends(session).sampler) {
    case SamplerBackend::portal:
        return std::make_unique<PortalScreenSampler>(QDBusConnection::sessionBus());
    case SamplerBackend::x11:
        if (auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
            x11 && x11->connection())
            return std::make_unique<X11ScreenSampler>(x11->connection());
        break;
    case SamplerBackend::none:
        break;
    }
    return std::make_unique<NullScreenSampler>();
}

std::unique_ptr<Clipboard> makeClipboard(const DesktopSession &session)
{
    if (chooseBackends(session).clipboard == ClipboardBackend::dataControl) {
        if (auto clipboard = WaylandDataControlClipboard::connect()) {
            qCDebug(lcClipboard) << "copying through" << clipboard->protocolName();
            return clipboard;
        }
        // GNOME's mutter, for one, offers no data-control: Qt's clipboard is what is left.
        qCInfo(lcClipboard) << "the compositor offers no data-control manager; copying through Qt";
    }
    return std::make_unique<QtClipboard>(session.isWayland());
}

std::unique_ptr<GlobalShortcutBackend> makeGlobalShortcutBackend(
    const DesktopSession &session, QObject *parent)
{
    switch (chooseBackends(session).shortcuts) {
    case ShortcutBackend::x11:
        if (auto backend = XcbShortcutBackend::create(parent))
            return backend;
        break;
    case ShortcutBackend::portal:
        if (const QDBusConnection bus = QDBusConnection::sessionBus(); bus.isConnected())
            return std::make_unique<PortalShortcutBackend>(bus, parent);
        break;
    case ShortcutBackend::none:
        break;
    }
    return std::make_unique<NullShortcutBackend>(parent);
}
