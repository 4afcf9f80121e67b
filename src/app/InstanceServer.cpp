#include "app/InstanceServer.h"

#include "app/AppIdentity.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <unistd.h>

namespace {

const QString serviceName = QString::fromLatin1(AppIdentity::dbusServiceName);
const QString objectPath = QString::fromLatin1(AppIdentity::dbusObjectPath);
const QString interfaceName = QString::fromLatin1(AppIdentity::dbusInterface);
constexpr int requestTimeoutMs = 5000;

// The request words spoken on the fallback socket, one a line.
QByteArray socketWord(const QString &method)
{
    return method == u"Pick" ? QByteArrayLiteral("pick\n") : QByteArrayLiteral("toggle\n");
}

bool sendOverSocket(const QString &method, QString *error)
{
    QLocalSocket socket;
    socket.connectToServer(InstanceServer::socketPath());
    if (!socket.waitForConnected(requestTimeoutMs)) {
        *error = QStringLiteral("Vantle is not running.");
        return false;
    }
    socket.write(socketWord(method));
    if (!socket.waitForBytesWritten(requestTimeoutMs) || !socket.waitForReadyRead(requestTimeoutMs)
        || !socket.readLine().startsWith("ok")) {
        *error = QStringLiteral("the running Vantle did not answer.");
        return false;
    }
    return true;
}

} // namespace

QString InstanceServer::socketPath()
{
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = QDir::tempPath();
    return dir + QStringLiteral("/vantle-%1.socket").arg(getuid());
}

std::unique_ptr<InstanceServer> InstanceServer::claim()
{
    std::unique_ptr<InstanceServer> server(new InstanceServer);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        const auto reply = bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService,
                                                            QDBusConnectionInterface::DontAllowReplacement);
        if (!reply.isValid() || reply.value() != QDBusConnectionInterface::ServiceRegistered)
            return nullptr;
        server->m_ownsBusName = true;
        bus.registerObject(objectPath, server.get(), QDBusConnection::ExportScriptableSlots);
        return server;
    }

    // No session bus: a socket of our own. A live one means another instance answers there.
    const QString path = socketPath();
    QLocalSocket probe;
    probe.connectToServer(path);
    if (probe.waitForConnected(500))
        return nullptr;
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
    if (request == "pick")
        Pick();
    else if (request == "toggle")
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

bool sendInstanceRequest(const QString &method, QString *error)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return sendOverSocket(method, error);
    if (!bus.interface()->isServiceRegistered(serviceName).value()) {
        *error = QStringLiteral("Vantle is not running.");
        return false;
    }
    const QDBusMessage call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, method);
    const QDBusMessage reply = bus.call(call, QDBus::Block, requestTimeoutMs);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        *error = QStringLiteral("the running Vantle did not answer (%1).").arg(reply.errorMessage());
        return false;
    }
    return true;
}
