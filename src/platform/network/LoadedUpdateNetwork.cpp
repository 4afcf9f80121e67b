// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/network/LoadedUpdateNetwork.h"

#include <QFileInfo>
#include <QTimer>
#include <dlfcn.h>

namespace {

constexpr char moduleFileName[] = "vantle-network.so";
constexpr char entryPoint[] = "vantleMakeUpdateNetwork";
using EntryPoint = UpdateNetwork *(*)();

// The folder of the code this function is part of: the desktop part once installed.
QString ownFolder()
{
    Dl_info info {};
    if (::dladdr(reinterpret_cast<void *>(&ownFolder), &info) == 0 || !info.dli_fname)
        return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

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
    const QByteArray path = (ownFolder() + QLatin1Char('/') + QLatin1String(moduleFileName)).toLocal8Bit();
    void *module = ::dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
    auto make = module ? reinterpret_cast<EntryPoint>(::dlsym(module, entryPoint)) : nullptr;
    if (make)
        m_network.reset(make());
    else
        qWarning("vantle: the network part of Vantle cannot be loaded (%s); updates cannot be checked. "
                 "Reinstalling Vantle puts it back.",
            ::dlerror());
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
