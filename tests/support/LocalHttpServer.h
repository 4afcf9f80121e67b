// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>

// An HTTP/1.1 server on 127.0.0.1 in the test's event loop: one fixed response per path, one
// answer per connection.
class LocalHttpServer {
public:
    struct Response {
        int status = 200;
        QByteArray body;
        QByteArray location; // for redirects
        bool stall = false; // read the request and never answer
    };

    LocalHttpServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection()) {
                QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
            }
        });
    }
    QString url(const QString &path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path);
    }
    void serve(const QString &path, Response response) { m_routes.insert(path, std::move(response)); }
    int requestCount() const { return m_requests; }

private:
    void answer(QTcpSocket *socket)
    {
        const QByteArray request = socket->property("request").toByteArray() + socket->readAll();
        socket->setProperty("request", request);
        if (!request.contains("\r\n\r\n") || socket->property("answered").toBool())
            return;
        socket->setProperty("answered", true);
        ++m_requests;
        const QList<QByteArray> words = request.left(request.indexOf("\r\n")).split(' ');
        const Response response
            = m_routes.value(QString::fromLatin1(words.value(1)), Response { 404, "not here", {}, false });
        if (response.stall)
            return;
        QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + " Whatever\r\n";
        if (!response.location.isEmpty())
            head += "Location: " + response.location + "\r\n";
        if (response.status != 304)
            head += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
        socket->write(
            head + "Connection: close\r\n\r\n" + (response.status != 304 ? response.body : QByteArray()));
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QString, Response> m_routes;
    int m_requests = 0;
};
