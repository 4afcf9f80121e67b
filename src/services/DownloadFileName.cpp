// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/DownloadFileName.h"

#include <QDir>
#include <QFileInfo>

namespace DownloadFileName {

QString safeFileName(const QUrl &url, const QString &fallback)
{
    // Split before decoding, so an encoded "/" stays inside the name (and is replaced below).
    const QString segment
        = QUrl::fromPercentEncoding(url.path(QUrl::FullyEncoded).section(QLatin1Char('/'), -1).toLatin1());
    QString name;
    for (const QChar c : segment) {
        const bool plain = c.isLetterOrNumber() || c == QLatin1Char('.') || c == QLatin1Char('-')
            || c == QLatin1Char('_') || c == QLatin1Char('+') || c == QLatin1Char(' ');
        name += plain ? c : QLatin1Char('_');
    }
    // No hidden files and no "." or "..": leading dots and spaces go.
    while (!name.isEmpty() && (name.front() == QLatin1Char('.') || name.front() == QLatin1Char(' ')))
        name.remove(0, 1);
    name = name.trimmed().left(200);
    return name.isEmpty() ? fallback : name;
}

QString unusedPath(const QString &folder, const QString &name)
{
    const QDir dir(folder);
    QString candidate = dir.filePath(name);
    const QFileInfo info(name);
    const QString base = info.completeBaseName().isEmpty() ? name : info.completeBaseName();
    const QString suffix = info.completeBaseName().isEmpty() || info.suffix().isEmpty()
        ? QString()
        : QLatin1Char('.') + info.suffix();
    for (int n = 2; QFileInfo::exists(candidate) && n < 10000; ++n)
        candidate = dir.filePath(QStringLiteral("%1 (%2)%3").arg(base).arg(n).arg(suffix));
    return candidate;
}

} // namespace DownloadFileName
