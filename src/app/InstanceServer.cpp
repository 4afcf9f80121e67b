#include "app/InstanceServer.h"

#include "app/AppIdentity.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <fcntl.h>
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

constexpr int heldElsewhere = -1;
constexpr int lockUnavailable = -2; // the runtime folder does not let us create it

int openLockFile()
{
    return ::open(QFile::encodeName(InstanceServer::lockPath()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

struct flock wholeFile(short type)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;
}

// The instance lock, taken without waiting: its descriptor, or one of the two answers above.
// A record lock, so that others can ask who holds it without taking it even for an instant.
int takeInstanceLock()
{
    const int fd = openLockFile();
    if (fd < 0)
        return lockUnavailable;
    struct flock lock = wholeFile(F_WRLCK);
    if (::fcntl(fd, F_SETLK, &lock) != 0) {
        ::close(fd);
        return heldElsewhere;
    }
    return fd;
}

bool instanceIsRunning()
{
    const int fd = openLockFile();
    if (fd < 0)
        return QFile::exists(InstanceServer::socketPath());
    struct flock lock = wholeFile(F_WRLCK);
    const bool held = ::fcntl(fd, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    ::close(fd);
    return held;
}

bool sendOverSocket(const QString &method, QString *error)
{
    QLocalSocket socket;
    // A Vantle that holds the lock may be a moment away from listening (it started at the same
    // instant as we did): give it a little while.
    QDeadlineTimer deadline(requestTimeoutMs);
    for (;;) {
        if (!instanceIsRunning()) {
            *error = QStringLiteral("Vantle is not running.");
            return false;
        }
        socket.connectToServer(InstanceServer::socketPath());
        if (socket.waitForConnected(requestTimeoutMs))
            break;
        if (deadline.hasExpired()) {
            *error = QStringLiteral("the running Vantle did not answer.");
            return false;
        }
        QThread::msleep(20);
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

QString InstanceServer::lockPath()
{
    return socketPath() + QStringLiteral(".lock");
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

    // No session bus: a socket of our own, served by whoever holds the instance lock.
    const QString path = socketPath();
    const int lock = takeInstanceLock();
    if (lock == heldElsewhere)
        return nullptr;
    if (lock == lockUnavailable) {
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
