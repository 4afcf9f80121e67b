// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/InstanceServer.h"

#include "app/AppIdentity.h"
#include "app/InstanceClient.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QSocketNotifier>
#include <cerrno>
#include <cstring>
#include <functional>
#include <map>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

const QString serviceName = QString::fromLatin1(AppIdentity::dbusServiceName);
const QString objectPath = QString::fromLatin1(AppIdentity::dbusObjectPath);

// A request is one short word and a newline; anything longer is not one of ours.
constexpr qsizetype longestRequest = 64;

bool addressFor(const QByteArray &path, sockaddr_un &address)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), path.size());
    return true;
}

// True when a Vantle answers on the socket at `path`.
bool socketAnswers(const QByteArray &path)
{
    sockaddr_un address;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = fd >= 0 && addressFor(path, address)
        && ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    if (fd >= 0)
        ::close(fd);
    return answers;
}

} // namespace

// The fallback socket, served on the main thread by socket notifiers (Qt Core alone: the
// desktop part maps no network library for it). Each connection says one word and is answered
// "ok\n".
class LocalRequestListener {
public:
    static std::unique_ptr<LocalRequestListener> listen(
        const QByteArray &path, std::function<void(const QByteArray &)> onRequest)
    {
        sockaddr_un address;
        if (!addressFor(path, address))
            return nullptr;
        const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        if (fd < 0)
            return nullptr;
        ::unlink(path.constData()); // left behind by an instance that crashed
        // Readable and writable by this user only, from the moment it exists.
        const mode_t mask = ::umask(0177);
        const bool bound = ::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
        ::umask(mask);
        if (!bound || ::listen(fd, 8) != 0) {
            ::close(fd);
            return nullptr;
        }
        return std::unique_ptr<LocalRequestListener>(
            new LocalRequestListener(fd, path, std::move(onRequest)));
    }

    ~LocalRequestListener()
    {
        for (auto &[fd, connection] : m_connections)
            ::close(fd);
        m_notifier.setEnabled(false);
        ::close(m_fd);
        ::unlink(m_path.constData());
    }

private:
    struct Connection {
        std::unique_ptr<QSocketNotifier> notifier;
        QByteArray received;
    };

    LocalRequestListener(int fd, QByteArray path, std::function<void(const QByteArray &)> onRequest)
        : m_fd(fd)
        , m_path(std::move(path))
        , m_onRequest(std::move(onRequest))
        , m_notifier(fd, QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { acceptAll(); });
    }

    void acceptAll()
    {
        int client;
        while ((client = ::accept4(m_fd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK)) >= 0) {
            auto notifier = std::make_unique<QSocketNotifier>(client, QSocketNotifier::Read);
            QObject::connect(notifier.get(), &QSocketNotifier::activated, [this, client] { read(client); });
            m_connections[client] = Connection { std::move(notifier), {} };
        }
    }

    void read(int client)
    {
        Connection &connection = m_connections[client];
        char buffer[longestRequest];
        ssize_t got;
        while ((got = ::recv(client, buffer, sizeof buffer, 0)) > 0)
            connection.received.append(buffer, got);
        const qsizetype end = connection.received.indexOf('\n');
        if (end >= 0 && end < longestRequest) {
            const QByteArray word = connection.received.left(end).trimmed();
            ::send(client, "ok\n", 3, MSG_NOSIGNAL);
            close(client);
            m_onRequest(word);
        } else if (got == 0 || (got < 0 && errno != EAGAIN && errno != EWOULDBLOCK)
            || connection.received.size() >= longestRequest) {
            close(client); // gone, or not one of ours
        }
    }

    void close(int client)
    {
        // The notifier goes later: this may run inside its own signal.
        QSocketNotifier *notifier = m_connections[client].notifier.release();
        notifier->setEnabled(false);
        notifier->deleteLater();
        m_connections.erase(client);
        ::close(client);
    }

    const int m_fd;
    const QByteArray m_path;
    const std::function<void(const QByteArray &)> m_onRequest;
    QSocketNotifier m_notifier;
    std::map<int, Connection> m_connections;
};

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
        if (socketAnswers(QFile::encodeName(path)))
            return nullptr;
    } else {
        server->m_lockFd = lock;
    }
    // Without a socket this is still the one instance we know of; requests just cannot reach us.
    InstanceServer *self = server.get();
    server->m_listener = LocalRequestListener::listen(
        QFile::encodeName(path), [self](const QByteArray &request) { self->handleRequest(request); });
    return server;
}

InstanceServer::~InstanceServer()
{
    m_listener.reset(); // the socket goes before the lock that guards it
    if (m_lockFd >= 0)
        ::close(m_lockFd);
    if (m_ownsBusName) {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.unregisterObject(objectPath);
        bus.unregisterService(serviceName);
    }
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
