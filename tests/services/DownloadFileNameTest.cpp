// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/DownloadFileName.h"

#include <gtest/gtest.h>

TEST(DownloadFileName, NamesNeverLeaveTheDownloadFolder)
{
    const struct {
        const char *url, *expected;
    } cases[] = {
        { "https://e.org/releases/Vantle-1.2.tar.gz", "Vantle-1.2.tar.gz" },
        { "https://e.org/a/..", "fallback" },
        { "https://e.org/a/%2E%2E", "fallback" },
        { "https://e.org/a/..%2F..%2Fetc%2Fpasswd", "_.._etc_passwd" },
        { "https://e.org/.bashrc", "bashrc" },
        { "https://e.org/", "fallback" },
        { "https://e.org/dir/evil%00name", "evil_name" },
        { "https://e.org/x%5C..%5Cy", "x_.._y" },
    };
    for (const auto &c : cases)
        EXPECT_EQ(
            DownloadFileName::safeFileName(QUrl(QString::fromLatin1(c.url)), QStringLiteral("fallback")),
            QString::fromLatin1(c.expected))
            << c.url;
}
