#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Writes `content` to `path` atomically: the whole file appears at once, and a failed write
// (a full disk, a read-only folder) leaves any existing file as it was. The system's
// description of the failure, or nothing.
std::optional<QString> writeFileAtomically(const QString &path, const QByteArray &content);
