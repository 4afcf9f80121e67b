// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <chrono>
#include <functional>

class QObject;
class QUrl;
class UpdateNetwork;

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

// `done` runs exactly once on the main thread, unless `context` is destroyed first. Abort the
// returned transfer through `network` to give up early (`done` then reports a failure).
QObject *get(UpdateNetwork &network, const QUrl &url, std::chrono::milliseconds transferTimeout,
    qint64 maximumSize, const QObject *context, std::function<void(const Result &)> done);

} // namespace BoundedFetch
