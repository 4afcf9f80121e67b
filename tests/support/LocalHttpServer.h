// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTcpServer>

// A tiny HTTP/1.1 server on 127.0.0.1 for update tests, in the test's own event loop. Each path
// answers with a fixed response; unknown paths get 404. Every connection is closed after one
// answer.
class LocalHttpServer : public QObject {
    Q_OBJECT
public:
    struct Response {
        int status = 200;
        QByteArray body;
        QByteArray location; // for redirects
        bool stall = false; // read the request and never answer
    };

    LocalHttpServer();
    QString url(const QString &path) const;
    void serve(const QString &path, Response response) { m_routes.insert(path, std::move(response)); }
    int requestCount() const { return m_requests; }
    QList<QString> requestedPaths() const { return m_paths; }

private:
    void answer(QTcpSocket *socket);

    QTcpServer m_server;
    QHash<QString, Response> m_routes;
    int m_requests = 0;
    QList<QString> m_paths;
};
