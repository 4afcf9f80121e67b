// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LoadedModule.h"

#include <QFileInfo>
#include <dlfcn.h>

namespace {

// The folder of the code this function is part of: the desktop part once installed.
QString ownFolder()
{
    Dl_info info {};
    if (::dladdr(reinterpret_cast<void *>(&ownFolder), &info) == 0 || !info.dli_fname)
        return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

} // namespace

void *loadedModuleEntry(const char *fileName, const char *entryPoint, QString *error)
{
    const QByteArray path = (ownFolder() + QLatin1Char('/') + QLatin1String(fileName)).toLocal8Bit();
    void *module = ::dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
    void *entry = module ? ::dlsym(module, entryPoint) : nullptr;
    if (!entry && error)
        *error = QString::fromLocal8Bit(::dlerror());
    return entry;
}
