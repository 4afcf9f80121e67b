// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/UpdateNetwork.h"

#include <QNetworkAccessManager>

// The updater's network over Qt Network. Lives in the network module (vantle-network.so),
// which the desktop part loads on the first transfer; tests link it directly.
class QtUpdateNetwork final : public UpdateNetwork {
public:
    QObject *get(const QUrl &url, std::chrono::milliseconds stallTimeout, const QObject *context,
        Handlers handlers) override;
    void abort(QObject *transfer) override;
    UpdateSignature::Verdict verifyDownload(const QString &filePath, qint64 expectedLength,
        const QString &base64Signature, const QString &base64PublicKey) override;

private:
    QNetworkAccessManager m_manager;
};
