// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateBundle.h"

#include "BuildInfo.h"

#include <QStandardPaths>

UpdateBundle UpdateBundle::fromBuildInfo()
{
    UpdateBundle bundle;
    bundle.name = QString::fromUtf8(BuildInfo::applicationName);
    bundle.version = QString::fromUtf8(BuildInfo::version);
    bundle.feedUrl = QString::fromUtf8(BuildInfo::feedUrl);
    bundle.publicKey = QString::fromUtf8(BuildInfo::updatePublicKey);
    bundle.downloadFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (bundle.downloadFolder.isEmpty())
        bundle.downloadFolder = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    return bundle;
}
