// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QUrl>
#include <chrono>
#include <functional>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;
class QObject;

// A plain GET that a hostile server cannot turn into a hang or a flood: the body is capped,
// a transfer that stalls is given up, and redirects are limited (and never go from https to
// http).
namespace BoundedFetch {

inline constexpr qint64 maximumFeedSize = 4 * 1024 * 1024;

struct Result {
    bool ok = false; // no network error and the body stayed within the cap
    int status = 0; // HTTP status, 0 when there was none
    QByteArray body;
};

// `done` runs exactly once on the main thread, unless `context` is destroyed first. The reply
// belongs to `manager`; abort it to give up early (`done` then reports a failure).
QNetworkReply *get(QNetworkAccessManager &manager, const QUrl &url, std::chrono::milliseconds transferTimeout,
    qint64 maximumSize, const QObject *context, std::function<void(const Result &)> done);

// The request every update transfer uses: no cookies, limited redirects, the stall timeout.
void prepareRequest(QNetworkRequest &request, std::chrono::milliseconds transferTimeout);

} // namespace BoundedFetch
