// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/LocalHttpServer.h"

#include <QTcpSocket>

LocalHttpServer::LocalHttpServer()
{
    m_server.listen(QHostAddress::LocalHost);
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        }
    });
}

QString LocalHttpServer::url(const QString &path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path);
}

void LocalHttpServer::answer(QTcpSocket *socket)
{
    QByteArray request = socket->property("request").toByteArray() + socket->readAll();
    socket->setProperty("request", request);
    if (!request.contains("\r\n\r\n") || socket->property("answered").toBool())
        return;
    socket->setProperty("answered", true);
    const QList<QByteArray> words = request.left(request.indexOf("\r\n")).split(' ');
    const QString path = words.size() > 1 ? QString::fromLatin1(words[1]) : QString();
    ++m_requests;
    m_paths.append(path);

    const Response response = m_routes.value(path, Response { 404, "not here" });
    if (response.stall)
        return;
    QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + " Whatever\r\n";
    if (!response.location.isEmpty())
        head += "Location: " + response.location + "\r\n";
    if (response.status != 304)
        head += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
    head += "Connection: close\r\n\r\n";
    socket->write(head);
    if (response.status != 304)
        socket->write(response.body);
    socket->disconnectFromHost();
}
