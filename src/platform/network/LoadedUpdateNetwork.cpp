// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/network/LoadedUpdateNetwork.h"

#include "platform/LoadedModule.h"

#include <QTimer>

namespace {

constexpr char moduleFileName[] = "vantle-network.so";
constexpr char entryPoint[] = "vantleMakeUpdateNetwork";
using EntryPoint = UpdateNetwork *(*)();

} // namespace

LoadedUpdateNetwork::LoadedUpdateNetwork() = default;

// The module stays loaded to the end of the process: the network objects it made are gone
// by now, but Qt Network may still hold its own.
LoadedUpdateNetwork::~LoadedUpdateNetwork() = default;

UpdateNetwork *LoadedUpdateNetwork::loaded()
{
    if (m_tried)
        return m_network.get();
    m_tried = true;
    QString error;
    if (auto make = reinterpret_cast<EntryPoint>(loadedModuleEntry(moduleFileName, entryPoint, &error)))
        m_network.reset(make());
    else
        qWarning("vantle: the network part of Vantle cannot be loaded (%s); updates cannot be checked. "
                 "Reinstalling Vantle puts it back.",
            qPrintable(error));
    return m_network.get();
}

QObject *LoadedUpdateNetwork::get(
    const QUrl &url, std::chrono::milliseconds stallTimeout, const QObject *context, Handlers handlers)
{
    if (UpdateNetwork *network = loaded())
        return network->get(url, stallTimeout, context, std::move(handlers));
    // Offline as far as the updater can tell; the answer still comes later, as a real one would.
    QTimer::singleShot(0, context, [done = std::move(handlers.onFinished)] { done(false, 0); });
    return nullptr;
}

void LoadedUpdateNetwork::abort(QObject *transfer)
{
    if (m_network && transfer)
        m_network->abort(transfer);
}

UpdateSignature::Verdict LoadedUpdateNetwork::verifyDownload(const QString &filePath, qint64 expectedLength,
    const QString &base64Signature, const QString &base64PublicKey)
{
    // Without the module no download could have come in; were one there, it could not be trusted.
    if (UpdateNetwork *network = loaded())
        return network->verifyDownload(filePath, expectedLength, base64Signature, base64PublicKey);
    return UpdateSignature::Verdict::badSignature;
}
