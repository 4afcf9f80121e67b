// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/InstanceClient.h"

#include "app/AppIdentity.h"
#include "app/CommandLine.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int requestTimeoutMs = 5000;

int openLockFile()
{
    return ::open(
        QFile::encodeName(InstanceChannel::lockPath()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

struct flock wholeFile(short type)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;
}

// Asks who holds the lock without taking it, even for an instant: a Vantle starting at this
// moment must never find it taken by a mere question.
bool instanceIsRunning()
{
    const int fd = openLockFile();
    if (fd < 0)
        return QFile::exists(InstanceChannel::socketPath());
    struct flock lock = wholeFile(F_WRLCK);
    const bool held = ::fcntl(fd, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    ::close(fd);
    return held;
}

class Socket {
public:
    Socket()
        : fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
    }
    ~Socket()
    {
        if (fd >= 0)
            ::close(fd);
    }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    bool connectTo(const QByteArray &path)
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        if (fd < 0 || path.size() >= qsizetype(sizeof address.sun_path))
            return false;
        std::memcpy(address.sun_path, path.constData(), path.size());
        return ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    }

    const int fd;
};

bool sendOverSocket(const QString &method, QString *error)
{
    const QByteArray path = QFile::encodeName(InstanceChannel::socketPath());
    // A Vantle that holds the lock may be a moment away from listening (it started at the same
    // instant as we did): give it a little while.
    QDeadlineTimer deadline(requestTimeoutMs);
    std::unique_ptr<Socket> socket;
    for (;;) {
        if (!instanceIsRunning()) {
            *error = CommandLine::tr("Vantle is not running.");
            return false;
        }
        socket = std::make_unique<Socket>();
        if (socket->connectTo(path))
            break;
        if (deadline.hasExpired()) {
            *error = CommandLine::tr("the running Vantle did not answer.");
            return false;
        }
        QThread::msleep(20);
    }

    const timeval timeout = { requestTimeoutMs / 1000, 0 };
    ::setsockopt(socket->fd, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    ::setsockopt(socket->fd, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
    const QByteArray request
        = QByteArray(method == u"Pick" ? InstanceChannel::pickWord : InstanceChannel::toggleWord) + '\n';
    QByteArray answer;
    bool sent = ::send(socket->fd, request.constData(), request.size(), MSG_NOSIGNAL) == request.size();
    while (sent && !answer.contains('\n') && answer.size() < 64) {
        char buffer[64];
        const ssize_t got = ::recv(socket->fd, buffer, sizeof buffer, 0);
        if (got <= 0)
            break;
        answer.append(buffer, got);
    }
    if (!answer.startsWith("ok\n")) {
        *error = CommandLine::tr("the running Vantle did not answer.");
        return false;
    }
    return true;
}

} // namespace

namespace InstanceChannel {

QString socketPath()
{
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = QDir::tempPath();
    return dir + QStringLiteral("/vantle-%1.socket").arg(getuid());
}

QString lockPath()
{
    return socketPath() + QStringLiteral(".lock");
}

int takeLock()
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

} // namespace InstanceChannel

bool sendInstanceRequest(const QString &method, QString *error)
{
    const QString serviceName = QString::fromLatin1(AppIdentity::dbusServiceName);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return sendOverSocket(method, error);
    if (!bus.interface()->isServiceRegistered(serviceName).value()) {
        *error = CommandLine::tr("Vantle is not running.");
        return false;
    }
    const QDBusMessage call
        = QDBusMessage::createMethodCall(serviceName, QString::fromLatin1(AppIdentity::dbusObjectPath),
            QString::fromLatin1(AppIdentity::dbusInterface), method);
    const QDBusMessage reply = bus.call(call, QDBus::Block, requestTimeoutMs);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        *error = CommandLine::tr("the running Vantle did not answer (%1).").arg(reply.errorMessage());
        return false;
    }
    return true;
}
