// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopSession.h"

#include <QGuiApplication>

#include <algorithm>

DesktopSession DesktopSession::current()
{
    DesktopSession session;
    session.platformName = QGuiApplication::platformName();
    session.sessionType = qEnvironmentVariable("XDG_SESSION_TYPE");
    if (auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr)
        session.hasX11Connection = x11->connection() != nullptr;
    session.hasWaylandDisplay
        = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_SOCKET");
    session.samplerOverride = qEnvironmentVariable("VANTLE_SAMPLER");
    session.clipboardOverride = qEnvironmentVariable("VANTLE_CLIPBOARD");
    session.shortcutsOverride = qEnvironmentVariable("VANTLE_SHORTCUTS");
    session.currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    return session;
}

bool DesktopSession::isGnome() const
{
    const QList<QStringView> names = QStringView(currentDesktop).split(u':');
    return std::any_of(names.begin(), names.end(),
        [](QStringView name) { return name.compare(u"GNOME", Qt::CaseInsensitive) == 0; });
}

namespace {

SamplerBackend chooseSampler(const DesktopSession &session)
{
    const QString forced = session.samplerOverride.trimmed().toLower();
    if (forced == u"portal")
        return SamplerBackend::portal;
    if (forced == u"x11")
        return session.hasX11Connection ? SamplerBackend::x11 : SamplerBackend::none;
    if (session.isWayland() || session.isWaylandSession())
        return SamplerBackend::portal;
    return session.hasX11Connection ? SamplerBackend::x11 : SamplerBackend::none;
}

ClipboardBackend chooseClipboard(const DesktopSession &session)
{
    const QString forced = session.clipboardOverride.trimmed().toLower();
    if (forced == u"qt")
        return ClipboardBackend::qt;
    if (forced == u"data-control")
        return ClipboardBackend::dataControl;
    // Qt on Wayland found the compositor, so our own connection finds it the same way.
    if (session.isWayland() || (session.hasWaylandDisplay && session.isWaylandSession()))
        return ClipboardBackend::dataControl;
    return ClipboardBackend::qt;
}

ShortcutBackend chooseShortcuts(const DesktopSession &session)
{
    const QString forced = session.shortcutsOverride.toLower();
    if (forced.isEmpty()) {
        if (session.isGnome() && (session.isWayland() || session.isWaylandSession()))
            return ShortcutBackend::gnome;
        return session.isX11()    ? ShortcutBackend::x11
            : session.isWayland() ? ShortcutBackend::portal
                                  : ShortcutBackend::none;
    }
    if (forced == u"x11")
        return ShortcutBackend::x11;
    if (forced == u"portal")
        return ShortcutBackend::portal;
    if (forced == u"gnome")
        return ShortcutBackend::gnome;
    return ShortcutBackend::none;
}

} // namespace

BackendChoice chooseBackends(const DesktopSession &session)
{
    return { chooseSampler(session), chooseClipboard(session), chooseShortcuts(session) };
}

QByteArray qtPlatformFor(const StartEnvironment &environment)
{
    return environment.needsDataControlProbe() && !environment.offersDataControl ? QByteArrayLiteral("xcb")
                                                                                 : QByteArray();
}
