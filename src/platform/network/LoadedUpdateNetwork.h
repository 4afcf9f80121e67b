// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/UpdateNetwork.h"

#include <memory>

// The updater's network as the desktop part uses it: loads the network module, which sits beside
// the desktop part, on the first transfer and hands every transfer to it. Without the module
// each transfer fails (the updater then says it is up to date, as when offline).
class LoadedUpdateNetwork final : public UpdateNetwork {
public:
    LoadedUpdateNetwork();
    ~LoadedUpdateNetwork() override;

    QObject *get(const QUrl &url, std::chrono::milliseconds stallTimeout, const QObject *context,
        Handlers handlers) override;
    void abort(QObject *transfer) override;
    UpdateSignature::Verdict verifyDownload(const QString &filePath, qint64 expectedLength,
        const QString &base64Signature, const QString &base64PublicKey) override;

private:
    UpdateNetwork *loaded();

    std::unique_ptr<UpdateNetwork> m_network;
    bool m_tried = false;
};
