// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/BoundedFetch.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <memory>

namespace BoundedFetch {

void prepareRequest(QNetworkRequest &request, std::chrono::milliseconds transferTimeout)
{
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(5);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setTransferTimeout(static_cast<int>(transferTimeout.count()));
}

QNetworkReply *get(QNetworkAccessManager &manager, const QUrl &url, std::chrono::milliseconds transferTimeout,
    qint64 maximumSize, const QObject *context, std::function<void(const Result &)> done)
{
    QNetworkRequest request(url);
    prepareRequest(request, transferTimeout);
    QNetworkReply *reply = manager.get(request);

    struct State {
        QByteArray body;
        bool tooLarge = false;
    };
    auto state = std::make_shared<State>();

    // Read as data arrives, so an endless body is cut off at the cap instead of filling memory.
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, state, maximumSize] {
        if (state->tooLarge)
            return;
        const QByteArray chunk = reply->read(maximumSize - state->body.size() + 1);
        state->body += chunk;
        if (state->body.size() > maximumSize) {
            state->tooLarge = true;
            state->body.clear();
            reply->abort();
        }
    });
    QObject::connect(
        reply, &QNetworkReply::finished, context, [reply, state, maximumSize, done = std::move(done)] {
            reply->deleteLater();
            if (!state->tooLarge && reply->bytesAvailable() > 0)
                state->body += reply->read(maximumSize - state->body.size() + 1);
            Result result;
            result.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
            result.ok = reply->error() == QNetworkReply::NoError && !state->tooLarge
                && state->body.size() <= maximumSize;
            if (result.ok)
                result.body = std::move(state->body);
            done(result);
        });
    return reply;
}

} // namespace BoundedFetch
