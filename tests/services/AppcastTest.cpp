// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/Appcast.h"
#include "support/UpdateSigning.h"

#include <gtest/gtest.h>

using UpdateSigning::appcast, UpdateSigning::appcastItem;

TEST(Appcast, ReadsTheNewestCompleteReleaseNewerThanOurs)
{
    const auto update = Appcast::newestUpdate(
        appcast(appcastItem("1.2") + appcastItem("1.10") + appcastItem("1.9")), QStringLiteral("1.0"));
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, QStringLiteral("1.10"));
    EXPECT_EQ(update->downloadUrl, QUrl(QStringLiteral("https://example.org/Vantle-1.10.tar.gz")));
    EXPECT_EQ(update->length, 1234);
    EXPECT_EQ(update->edSignature, QStringLiteral("c2ln"));
    EXPECT_EQ(update->releaseNotes, QStringLiteral("<p>Notes 1.10</p>"));
    // Versions may sit on the enclosure instead.
    const auto onEnclosure
        = Appcast::newestUpdate(appcast(R"(<item><enclosure url="https://example.org/v.zip" length="10"
        sparkle:version="205" sparkle:shortVersionString="2.5" sparkle:edSignature="c2ln"/></item>)"),
            QStringLiteral("1.0"));
    ASSERT_TRUE(onEnclosure);
    EXPECT_EQ(onEnclosure->version, QStringLiteral("205"));
    EXPECT_EQ(onEnclosure->displayVersion, QStringLiteral("2.5"));
}

TEST(Appcast, BrokenOrUselessFeedsOfferNothing)
{
    // Each change made to a feed holding one good release, 2.0.
    const std::pair<QByteArray, QByteArray> changes[] = {
        { "2.0", "1.0" }, // same version
        { " sparkle:edSignature=\"c2ln\"", "" },
        { " length=\"1234\"", "" },
        { "<sparkle:version>2.0</sparkle:version>", "" },
        { "</item></channel></rss>", "" }, // cut off inside the item
        { "<rss", "{ \"json\": true }<rss" },
    };
    for (const auto &[from, to] : changes)
        EXPECT_FALSE(
            Appcast::newestUpdate(appcast(appcastItem("2.0")).replace(from, to), QStringLiteral("1.0")))
            << to.constData();
    EXPECT_TRUE(Appcast::newestUpdate(appcast(appcastItem("2.0")), QStringLiteral("1.0")));
}
