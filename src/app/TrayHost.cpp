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

} // namespace

TrayHost::TrayHost(QObject *parent)
    : QObject(parent)
{
}

bool TrayHost::statusNotifierHostExists()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(watcherName).value();
}

bool TrayHost::xembedTrayExists()
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->connection())
        return false;
    xcb_connection_t *connection = x11->connection();
    const int screen = 0; // the tray of the default screen; Qt uses one X screen
    const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen);
    xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 1, name.size(), name.constData()), nullptr);
    if (!atom)
        return false;
    const xcb_atom_t selection = atom->atom;
    free(atom);
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
    if (statusNotifierHostExists() || xembedTrayExists()) {
        settle(true); // the usual case: the icon is made right now, in its place in the launch
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        auto *watcher
            = new QDBusServiceWatcher(watcherName, bus, QDBusServiceWatcher::WatchForRegistration, this);
        connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { settle(true); });
    }
    m_timeout = new QTimer(this);
    m_timeout->setSingleShot(true);
    connect(m_timeout, &QTimer::timeout, this, [this] { settle(xembedTrayExists()); });
    m_timeout->start(waitMs);
}

void TrayHost::settle(bool found)
{
    if (m_settled)
        return;
    m_settled = true;
    if (m_timeout)
        m_timeout->stop();
    if (found)
        Q_EMIT available();
    else
        Q_EMIT unavailable();
}
