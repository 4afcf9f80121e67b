// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TrayHost.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QTimer>
#include <xcb/xcb.h>

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QByteArray xembedTraySelection = "_NET_SYSTEM_TRAY_S0"; // the default screen's; Qt uses one

xcb_connection_t *x11Connection()
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name, bool onlyIfExists)
{
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, onlyIfExists, name.size(), name.constData()), nullptr);
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    free(reply);
    return atom;
}

} // namespace

TrayHost::TrayHost(QObject *parent)
    : QObject(parent)
{
}

TrayHost::~TrayHost()
{
    if (m_managerAtom && qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool TrayHost::statusNotifierHostExists()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(watcherName).value();
}

bool TrayHost::xembedTrayExists()
{
    xcb_connection_t *connection = x11Connection();
    if (!connection)
        return false;
    const xcb_atom_t selection = atom(connection, xembedTraySelection, true);
    if (selection == XCB_ATOM_NONE)
        return false;
    xcb_get_selection_owner_reply_t *owner
        = xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr);
    const bool exists = owner && owner->owner != XCB_WINDOW_NONE;
    free(owner);
    return exists;
}

void TrayHost::sendPendingRequests()
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (x11 && x11->connection())
        xcb_flush(x11->connection());
}

void TrayHost::waitForHost(int waitMs)
{
    // The X server answers sooner than the session bus: on an X11 tray the bus is not asked.
    if (xembedTrayExists() || statusNotifierHostExists()) {
        found(); // the usual case: the icon is made right now, in its place in the launch
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        m_watcher
            = new QDBusServiceWatcher(watcherName, bus, QDBusServiceWatcher::WatchForRegistration, this);
        connect(m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayHost::found);
    }
    watchForXembedTray();
    m_timeout = new QTimer(this);
    m_timeout->setSingleShot(true);
    connect(m_timeout, &QTimer::timeout, this, [this] {
        if (xembedTrayExists())
            found();
        else
            Q_EMIT unavailable();
    });
    m_timeout->start(waitMs);
}

// A tray that starts announces itself to every client with a MANAGER message on the root
// window, which Qt already listens to (it selects the root's structure events for it).
void TrayHost::watchForXembedTray()
{
    xcb_connection_t *connection = x11Connection();
    if (!connection)
        return;
    m_managerAtom = atom(connection, "MANAGER", false);
    m_traySelection = atom(connection, xembedTraySelection, false);
    if (m_managerAtom && m_traySelection)
        qGuiApp->installNativeEventFilter(this);
    else
        m_managerAtom = 0;
}

bool TrayHost::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (m_found || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    const auto *announcement = static_cast<const xcb_client_message_event_t *>(message);
    if (announcement->type == m_managerAtom && announcement->format == 32
        && announcement->data.data32[1] == m_traySelection) {
        // Not from inside the event dispatch: the icon's creation talks to the X server.
        QMetaObject::invokeMethod(this, &TrayHost::found, Qt::QueuedConnection);
    }
    return false;
}

void TrayHost::found()
{
    if (m_found)
        return;
    m_found = true;
    if (m_timeout)
        m_timeout->stop();
    if (m_watcher)
        m_watcher->deleteLater();
    if (m_managerAtom) {
        qGuiApp->removeNativeEventFilter(this);
        m_managerAtom = 0;
    }
    Q_EMIT available();
}
