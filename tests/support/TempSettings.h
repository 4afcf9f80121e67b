// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/SettingsStore.h"

#include <QTemporaryDir>
#include <memory>

// A settings store backed by a file in a fresh temporary folder, removed with the fixture.
struct TempSettings {
    TempSettings();
    QString filePath() const { return dir.filePath(QStringLiteral("Vantle.conf")); }
    // A store that reads the file as it is on disk now, as the next launch would.
    std::unique_ptr<SettingsStore> reopen() const;

    QTemporaryDir dir;
    std::unique_ptr<SettingsStore> store;
};
