// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

// Where a downloaded update is written: always inside the download folder, under a name taken
// from the address but stripped of anything that could climb out of it or hide it, and never
// over a file that is already there.
namespace DownloadFileName {

// The last segment of the address's path, reduced to a plain file name; `fallback` when
// nothing usable is left.
QString safeFileName(const QUrl &url, const QString &fallback);

// `folder`/`name`, or "name (2).ext", "name (3).ext", … when that is taken.
QString unusedPath(const QString &folder, const QString &name);

} // namespace DownloadFileName
