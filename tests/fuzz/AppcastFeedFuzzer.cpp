// SPDX-License-Identifier: GPL-3.0-or-later
// The update feed as the server sends it: whatever release it offers must be newer than ours,
// complete, and downloadable only over http or https.
#include "FuzzCheck.h"

#include "services/Appcast.h"
#include "services/VersionComparison.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray feed(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString current = QStringLiteral("1.0");
    const std::optional<AppcastItem> item = Appcast::newestUpdate(feed, current);
    if (!item)
        return 0;
    FUZZ_CHECK(!item->version.isEmpty());
    FUZZ_CHECK(compareVersions(item->version, current) > 0);
    FUZZ_CHECK(item->length > 0);
    FUZZ_CHECK(!item->edSignature.isEmpty());
    FUZZ_CHECK(item->downloadUrl.isValid());
    const QString scheme = item->downloadUrl.scheme();
    FUZZ_CHECK(scheme == u"http" || scheme == u"https");
    FUZZ_CHECK(!item->downloadUrl.host().isEmpty());
    if (!item->releaseNotesLink.isEmpty()) {
        const QString notesScheme = item->releaseNotesLink.scheme();
        FUZZ_CHECK(notesScheme == u"http" || notesScheme == u"https");
    }
    return 0;
}
