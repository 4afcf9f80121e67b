// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/UpdateSignature.h"

#include <QtGlobal>
#include <chrono>
#include <functional>

class QByteArray;
class QObject;
class QUrl;

// The network the updater reads its feed and its downloads through. The real one (Qt Network
// with its TLS and proxy libraries, a few MiB once loaded) is a module of its own that is loaded
// on the first transfer: a Vantle that is never asked to check for updates never maps it.
// Main thread only.
class UpdateNetwork {
public:
    struct Handlers {
        // Each piece of the body as it arrives, in order; false gives the transfer up.
        std::function<bool(const QByteArray &chunk)> onData;
        // Bytes received so far; may be empty.
        std::function<void(qint64 received)> onProgress;
        // Exactly once, after the last onData, unless `context` is destroyed first: whether the
        // transfer ended without a network error and was not given up or aborted, and the HTTP
        // status (0 when there was none).
        std::function<void(bool ok, int status)> onFinished;
    };

    virtual ~UpdateNetwork() = default;

    // A plain GET with no cookies, at most five redirects (never from https to http), given up
    // when nothing arrives for `stallTimeout`. The handle stays valid until onFinished has run.
    virtual QObject *get(
        const QUrl &url, std::chrono::milliseconds stallTimeout, const QObject *context, Handlers handlers)
        = 0;
    // Ends a transfer early; its onFinished reports a failure.
    virtual void abort(QObject *transfer) = 0;

    // A downloaded update checked against the feed's promise (UpdateSignature::verifyFile). It
    // lives beside the transfers, in the module that the first transfer loads.
    virtual UpdateSignature::Verdict verifyDownload(const QString &filePath, qint64 expectedLength,
        const QString &base64Signature, const QString &base64PublicKey)
        = 0;
};
