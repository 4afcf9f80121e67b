// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/SettingsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <memory>

// A settings store backed by a file in a fresh temporary folder, removed with the fixture.
struct TempSettings {
    QString filePath() const { return dir.filePath(QStringLiteral("Vantle.conf")); }
    // A store that reads the file as it is on disk now, as the next launch would. QSettings
    // caches parsed files per path inside a process, so the store reads a copy under a new name.
    std::unique_ptr<SettingsStore> reopen() const
    {
        static int generation = 0;
        const QString copy = dir.filePath(QStringLiteral("next-%1.conf").arg(++generation));
        QFile::copy(filePath(), copy);
        return std::make_unique<SettingsStore>(copy);
    }

    QTemporaryDir dir;
    std::unique_ptr<SettingsStore> store = std::make_unique<SettingsStore>(filePath());
};
