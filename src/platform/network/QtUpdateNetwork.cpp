// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/network/QtUpdateNetwork.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <memory>

QObject *QtUpdateNetwork::get(
    const QUrl &url, std::chrono::milliseconds stallTimeout, const QObject *context, Handlers handlers)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(5);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setTransferTimeout(static_cast<int>(stallTimeout.count()));
    QNetworkReply *reply = m_manager.get(request);

    struct State {
        Handlers handlers;
        bool givenUp = false;
    };
    auto state = std::make_shared<State>(State { std::move(handlers) });
    const auto deliver = [reply, state] {
        if (state->givenUp || reply->bytesAvailable() <= 0)
            return;
        if (!state->handlers.onData(reply->readAll())) {
            state->givenUp = true;
            reply->abort();
        }
    };
    QObject::connect(reply, &QNetworkReply::readyRead, reply, deliver);
    if (state->handlers.onProgress)
        QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
            [state](qint64 received, qint64) { state->handlers.onProgress(received); });
    QObject::connect(reply, &QNetworkReply::finished, context, [reply, state, deliver] {
        reply->deleteLater();
        deliver();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        state->handlers.onFinished(reply->error() == QNetworkReply::NoError && !state->givenUp, status);
    });
    return reply;
}

void QtUpdateNetwork::abort(QObject *transfer)
{
    if (auto *reply = qobject_cast<QNetworkReply *>(transfer))
        reply->abort();
}

UpdateSignature::Verdict QtUpdateNetwork::verifyDownload(const QString &filePath, qint64 expectedLength,
    const QString &base64Signature, const QString &base64PublicKey)
{
    return UpdateSignature::verifyFile(filePath, expectedLength, base64Signature, base64PublicKey);
}
