#include "platform/ClipboardFactory.h"

#include "platform/QtClipboard.h"
#include "platform/WaylandDataControlClipboard.h"

#include <QGuiApplication>
#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lcClipboard, "vantle.clipboard")
}

ClipboardBackend chooseClipboardBackend(
    const QString &override, const QString &platformName, const QString &sessionType, bool hasWaylandDisplay)
{
    const QString forced = override.trimmed().toLower();
    if (forced == u"qt")
        return ClipboardBackend::qt;
    if (forced == u"data-control")
        return ClipboardBackend::dataControl;
    // Qt on Wayland found the compositor, so our own connection finds it the same way.
    if (platformName.startsWith(QStringLiteral("wayland")))
        return ClipboardBackend::dataControl;
    // Through XWayland too: the X11 selection reaches Wayland programs only as far as the
    // compositor bridges it, while data-control talks to the compositor itself.
    if (hasWaylandDisplay && sessionType.compare(QStringLiteral("wayland"), Qt::CaseInsensitive) == 0)
        return ClipboardBackend::dataControl;
    return ClipboardBackend::qt;
}

std::unique_ptr<Clipboard> makeClipboard()
{
    const bool hasWaylandDisplay
        = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_SOCKET");
    const ClipboardBackend backend = chooseClipboardBackend(qEnvironmentVariable("VANTLE_CLIPBOARD"),
        QGuiApplication::platformName(), qEnvironmentVariable("XDG_SESSION_TYPE"), hasWaylandDisplay);
    if (backend == ClipboardBackend::dataControl) {
        if (auto clipboard = WaylandDataControlClipboard::connect()) {
            qCDebug(lcClipboard) << "copying through" << clipboard->protocolName();
            return clipboard;
        }
        // GNOME's mutter, for one, offers no data-control: Qt's clipboard is what is left.
        qCInfo(lcClipboard) << "the compositor offers no data-control manager; copying through Qt";
    }
    return std::make_unique<QtClipboard>();
}
