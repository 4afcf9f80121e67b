#include "services/AtomicFile.h"

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
