// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/InstanceServer.h"

#include "app/AppIdentity.h"
#include "app/InstanceClient.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QLocalServer>
#include <QLocalSocket>
#include <unistd.h>

namespace {

const QString serviceName = QString::fromLatin1(AppIdentity::dbusServiceName);
const QString objectPath = QString::fromLatin1(AppIdentity::dbusObjectPath);

} // namespace

std::unique_ptr<InstanceServer> InstanceServer::claim()
{
    std::unique_ptr<InstanceServer> server(new InstanceServer);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        const auto reply = bus.interface()->registerService(serviceName,
            QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
        if (!reply.isValid() || reply.value() != QDBusConnectionInterface::ServiceRegistered)
            return nullptr;
        server->m_ownsBusName = true;
        bus.registerObject(objectPath, server.get(), QDBusConnection::ExportScriptableSlots);
        return server;
    }

    // No session bus: a socket of our own, served by whoever holds the instance lock.
    const QString path = InstanceChannel::socketPath();
    const int lock = InstanceChannel::takeLock();
    if (lock == InstanceChannel::heldElsewhere)
        return nullptr;
    if (lock == InstanceChannel::lockUnavailable) {
        // No lock to be had: a socket that answers is the only sign of another Vantle.
        QLocalSocket probe;
        probe.connectToServer(path);
        if (probe.waitForConnected(500))
            return nullptr;
    } else {
        server->m_lockFd = lock;
    }
    QLocalServer::removeServer(path); // left behind by an instance that crashed
    auto local = std::make_unique<QLocalServer>();
    local->setSocketOptions(QLocalServer::UserAccessOption);
    if (!local->listen(path))
        return server; // still the one instance we know of; requests just cannot reach us
    server->serveLocalSocket(std::move(local));
    return server;
}

InstanceServer::~InstanceServer()
{
    m_localServer.reset(); // the socket goes before the lock that guards it
    if (m_lockFd >= 0)
        ::close(m_lockFd);
    if (m_ownsBusName) {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.unregisterObject(objectPath);
        bus.unregisterService(serviceName);
    }
}

void InstanceServer::serveLocalSocket(std::unique_ptr<QLocalServer> server)
{
    m_localServer = std::move(server);
    connect(m_localServer.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_localServer->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
                if (!socket->canReadLine()) {
                    if (socket->bytesAvailable() > 64)
                        socket->disconnectFromServer(); // not one of ours
                    return;
                }
                handleRequest(socket->readLine(64).trimmed());
                socket->write("ok\n");
                socket->disconnectFromServer();
            });
        }
    });
}

void InstanceServer::handleRequest(const QByteArray &request)
{
    if (request == InstanceChannel::pickWord)
        Pick();
    else if (request == InstanceChannel::toggleWord)
        TogglePopover();
}

void InstanceServer::Pick()
{
    Q_EMIT pickRequested();
}

void InstanceServer::TogglePopover()
{
    Q_EMIT togglePopoverRequested();
}
