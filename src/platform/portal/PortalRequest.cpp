// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalRequest.h"

#include "platform/portal/PortalSignals.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QRandomGenerator>

PortalRequest::PortalRequest(QObject *parent, Completion completion)
    : QObject(parent)
    , m_completion(std::move(completion))
{
}

PortalRequest *PortalRequest::send(const QDBusConnection &bus, QDBusMessage call, QVariantMap options,
    QObject *parent, Completion completion)
{
    auto *request = new PortalRequest(parent, std::move(completion));
    const QString token = newToken();
    request->m_handle = handlePath(bus.baseService(), token);
    request->m_signals = new PortalRequestSignals(bus, request);
    connect(request->m_signals, &PortalRequestSignals::Response, request,
        [request](uint response, const QVariantMap &results) {
            if (request->m_signals->responsePath() == request->m_handle)
                request->finish({ Response(response), results });
        });

    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), request);
    connect(watcher, &QDBusPendingCallWatcher::finished, request, [request](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        if (!request->m_completion)
            return; // the Response came first
        const QDBusPendingReply<QDBusObjectPath> reply = *w;
        if (reply.isError())
            request->finish({});
        else
            request->m_handle = reply.value().path();
    });
    return request;
}

QString PortalRequest::handlePath(const QString &uniqueName, const QString &token)
{
    QString sender = uniqueName;
    if (sender.startsWith(u':'))
        sender.remove(0, 1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

QString PortalRequest::newToken()
{
    static quint64 counter = 0;
    return QStringLiteral("vantle_%1_%2").arg(++counter).arg(QRandomGenerator::global()->generate());
}

void PortalRequest::finish(const Result &result)
{
    if (!m_completion)
        return;
    // Unsubscribe now: other requests' Responses are none of ours. Not deleted here, since this
    // may run inside the delivery of its own signal.
    disconnect(m_signals, nullptr, this, nullptr);
    const Completion completion = std::move(m_completion);
    m_completion = nullptr;
    deleteLater();
    completion(result);
}
