// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/AtomicFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

std::optional<QString> writeFileAtomically(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    // QSaveFile buffers: a write can "succeed" into memory and the disk's refusal only shows
    // in the flush, which commit() does not report. Without this check a full disk replaces
    // the old file with an empty one.
    if (file.write(content) != content.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return reason;
    }
    if (!file.commit())
        return file.errorString();
    return std::nullopt;
}

QString unreadableAsidePath(const QString &path)
{
    const QString stamp = path + QStringLiteral(".unreadable-")
        + QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = stamp;
    for (int n = 2; QFileInfo::exists(aside) || QFileInfo(aside).isSymLink(); ++n)
        aside = stamp + QLatin1Char('-') + QString::number(n);
    return aside;
}

void keepUnreadableAside(const QString &path, const QByteArray &bytes)
{
    const QFileInfo info(path);
    const QDir folder = info.absoluteDir();
    const QStringList pattern { info.fileName() + QStringLiteral(".unreadable-*") };
    for (const QString &name : folder.entryList(pattern, QDir::Files)) {
        QFile kept(folder.filePath(name));
        if (kept.size() == bytes.size() && kept.open(QIODevice::ReadOnly) && kept.readAll() == bytes)
            return;
    }
    folder.mkpath(QStringLiteral("."));
    writeFileAtomically(unreadableAsidePath(path), bytes);
}
