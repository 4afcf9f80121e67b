// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>

// One release offered by the update feed: an RSS <item> with its <enclosure>.
struct AppcastItem {
    QString version; // sparkle:version, compared with ours
    QString displayVersion; // sparkle:shortVersionString, or the version when absent
    QString title;
    QString releaseNotes; // the item's <description> (HTML)
    QUrl releaseNotesLink; // sparkle:releaseNotesLink (http or https), not fetched
    QUrl downloadUrl; // enclosure url, http or https only
    qint64 length = 0; // enclosure length in bytes, > 0
    QString edSignature; // enclosure sparkle:edSignature, base64
};

namespace Appcast {

// The newest complete release in the feed that is newer than `currentVersion`, or nothing.
// Items missing a version, a usable download address, a positive length or a signature are
// ignored, as is everything that is not well-formed XML from the first error on; the parse is
// a single pass over the text, so even a feed with a hundred thousand items stays cheap.
std::optional<AppcastItem> newestUpdate(const QByteArray &feed, const QString &currentVersion);

} // namespace Appcast
