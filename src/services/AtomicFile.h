// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Writes `content` to `path` atomically: the whole file appears at once, and a failed write
// (a full disk, a read-only folder) leaves any existing file as it was. The system's
// description of the failure, or nothing.
std::optional<QString> writeFileAtomically(const QString &path, const QByteArray &content);

// Where something that cannot be read, but may still hold the user's colours, goes before
// anything replaces it: "<path>.unreadable-<UTC time>", numbered when that second already put
// one there.
QString unreadableAsidePath(const QString &path);

// Keeps `bytes` that belong at `path` but cannot be used aside as above, unless the very same
// bytes were kept before (they are found again at every launch until something is saved). A
// failure is silent: there is nothing more to do.
void keepUnreadableAside(const QString &path, const QByteArray &bytes);
