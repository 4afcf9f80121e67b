// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/BoundedFetch.h"

#include "services/UpdateNetwork.h"

#include <memory>

namespace BoundedFetch {

QObject *get(UpdateNetwork &network, const QUrl &url, std::chrono::milliseconds transferTimeout,
    qint64 maximumSize, const QObject *context, std::function<void(const Result &)> done)
{
    auto body = std::make_shared<QByteArray>();
    UpdateNetwork::Handlers handlers;
    // Kept as it arrives, so an endless body is cut off at the cap instead of filling memory.
    handlers.onData = [body, maximumSize](const QByteArray &chunk) {
        if (body->size() + chunk.size() > maximumSize) {
            body->clear();
            return false;
        }
        body->append(chunk);
        return true;
    };
    handlers.onFinished = [body, done = std::move(done)](bool ok, int status) {
        Result result;
        result.ok = ok;
        result.status = status;
        if (ok)
            result.body = std::move(*body);
        done(result);
    };
    return network.get(url, transferTimeout, context, std::move(handlers));
}

} // namespace BoundedFetch
