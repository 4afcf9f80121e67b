// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LoadedModule.h"

#include "BuildInfo.h"

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

// The modules sit beside the desktop part. Code linked into a program in bin/ (a test, a
// benchmark) finds them where `vantle` finds the desktop part.
QString modulePath(const char *fileName)
{
    const QString own = ownFolder();
    const QString beside = own + QLatin1Char('/') + QLatin1String(fileName);
    if (QFileInfo::exists(beside))
        return beside;
    return QFileInfo(own + QLatin1Char('/') + QLatin1String(BuildInfo::desktopPartPath)).absolutePath()
        + QLatin1Char('/') + QLatin1String(fileName);
}

} // namespace

void *loadedModuleEntry(const char *fileName, const char *entryPoint, QString *error)
{
    const QByteArray path = modulePath(fileName).toLocal8Bit();
    void *module = ::dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
    void *entry = module ? ::dlsym(module, entryPoint) : nullptr;
    if (!entry && error)
        *error = QString::fromLocal8Bit(::dlerror());
    return entry;
}
