// SPDX-License-Identifier: GPL-3.0-or-later
// The update feed as the server sends it: whatever release it offers must be newer than ours,
// complete, and downloadable only over http or https.
#include "FuzzCheck.h"

#include "services/Appcast.h"
#include "services/VersionComparison.h"

void fuzzOne(const QByteArray &feed)
{
    const std::optional<AppcastItem> item = Appcast::newestUpdate(feed, QStringLiteral("1.0"));
    if (!item)
        return;
    FUZZ_CHECK(compareVersions(item->version, QStringLiteral("1.0")) > 0 && !item->version.isEmpty());
    FUZZ_CHECK(item->length > 0 && !item->edSignature.isEmpty());
    const QString scheme = item->downloadUrl.scheme();
    FUZZ_CHECK(item->downloadUrl.isValid() && !item->downloadUrl.host().isEmpty());
    FUZZ_CHECK(scheme == u"http" || scheme == u"https");
    const QString notesScheme = item->releaseNotesLink.scheme();
    FUZZ_CHECK(item->releaseNotesLink.isEmpty() || notesScheme == u"http" || notesScheme == u"https");
}
