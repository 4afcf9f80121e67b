// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopSession.h"

#include <QGuiApplication>

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
    return session;
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
    if (forced.isEmpty())
        return session.isX11()    ? ShortcutBackend::x11
            : session.isWayland() ? ShortcutBackend::portal
                                  : ShortcutBackend::none;
    if (forced == u"x11")
        return ShortcutBackend::x11;
    if (forced == u"portal")
        return ShortcutBackend::portal;
    return ShortcutBackend::none;
}

} // namespace

BackendChoice chooseBackends(const DesktopSession &session)
{
    return { chooseSampler(session), chooseClipboard(session), chooseShortcuts(session) };
}
