// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TempSettings.h"

#include <QFile>

TempSettings::TempSettings()
    : store(std::make_unique<SettingsStore>(filePath()))
{
}

std::unique_ptr<SettingsStore> TempSettings::reopen() const
{
    // QSettings caches parsed files per path inside a process; a copy under a new name makes
    // the next store read the bytes on disk, as the next launch does.
    static int generation = 0;
    const QString copy = dir.filePath(QStringLiteral("next-%1.conf").arg(++generation));
    QFile::copy(filePath(), copy);
    return std::make_unique<SettingsStore>(copy);
}
