// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlatformBackends.h"

#include "platform/NullScreenSampler.h"
#include "platform/QtClipboard.h"
#include "platform/gnome/GnomeShortcutBackend.h"
#include "platform/portal/PortalScreenSampler.h"
#include "platform/portal/PortalShortcutBackend.h"
#include "platform/wayland/LoadedWayland.h"
#include "platform/x11/X11ScreenSampler.h"
#include "platform/x11/XcbShortcutBackend.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QLoggingCategory>

namespace {
// One line per choice, shown with QT_LOGGING_RULES="vantle.*=true".
Q_LOGGING_CATEGORY(lcBackends, "vantle.backends", QtWarningMsg)
} // namespace

std::unique_ptr<ScreenColorSampler> makeScreenColorSampler(const DesktopSession &session)
{
    switch (chooseBackends(session).sampler) {
    case SamplerBackend::portal:
        qCInfo(lcBackends) << "sampler: the desktop's colour picker through the Screenshot portal";
        return std::make_unique<PortalScreenSampler>(QDBusConnection::sessionBus());
    case SamplerBackend::x11:
        if (auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
            x11 && x11->connection()) {
            qCInfo(lcBackends) << "sampler: our own, reading the X11 screen";
            return std::make_unique<X11ScreenSampler>(x11->connection());
        }
        break;
    case SamplerBackend::none:
        break;
    }
    qCInfo(lcBackends) << "sampler: none on this desktop";
    return std::make_unique<NullScreenSampler>();
}

std::unique_ptr<Clipboard> makeClipboard(const DesktopSession &session)
{
    if (chooseBackends(session).clipboard == ClipboardBackend::dataControl) {
        QString protocolName;
        if (auto clipboard = LoadedWayland::connectDataControlClipboard(&protocolName)) {
            qCInfo(lcBackends) << "clipboard: Wayland data-control," << protocolName;
            return clipboard;
        }
        // GNOME's mutter, for one, offers no data-control: Qt's clipboard is what is left.
    }
    qCInfo(lcBackends) << "clipboard: Qt's, on" << session.platformName
                       << (session.isX11() ? "(an X11 selection, no focus needed)" : "");
    return std::make_unique<QtClipboard>(session.isWayland());
}

std::unique_ptr<GlobalShortcutBackend> makeGlobalShortcutBackend(
    const DesktopSession &session, QObject *parent)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    switch (chooseBackends(session).shortcuts) {
    case ShortcutBackend::x11:
        if (auto backend = XcbShortcutBackend::create(parent)) {
            qCInfo(lcBackends) << "shortcuts: X11 key grabs";
            return backend;
        }
        break;
    case ShortcutBackend::portal:
        if (bus.isConnected()) {
            qCInfo(lcBackends) << "shortcuts: the desktop's GlobalShortcuts portal";
            return std::make_unique<PortalShortcutBackend>(bus, parent);
        }
        break;
    case ShortcutBackend::gnome:
        // It says which of its two it runs once the portal has answered.
        if (bus.isConnected())
            return std::make_unique<GnomeShortcutBackend>(
                bus, QCoreApplication::applicationFilePath(), parent);
        break;
    case ShortcutBackend::none:
        break;
    }
    qCInfo(lcBackends) << "shortcuts: none on this desktop";
    return std::make_unique<NullShortcutBackend>(parent);
}
