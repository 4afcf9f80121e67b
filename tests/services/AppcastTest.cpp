// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/Appcast.h"

#include <gtest/gtest.h>

namespace {

QByteArray feed(const QByteArray &items)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
<channel><title>Vantle</title>)"
        + items + "</channel></rss>";
}

QByteArray item(const QByteArray &version)
{
    return "<item><title>Version " + version + "</title><sparkle:version>" + version + "</sparkle:version>"
        + "<description><![CDATA[<p>Notes " + version
        + "</p>]]></description><enclosure url=\"https://example.org/Vantle-" + version
        + ".tar.gz\" length=\"1234\" sparkle:edSignature=\"c2ln\"/></item>";
}

} // namespace

TEST(Appcast, ReadsTheNewestCompleteReleaseNewerThanOurs)
{
    const auto update
        = Appcast::newestUpdate(feed(item("1.2") + item("1.10") + item("1.9")), QStringLiteral("1.0"));
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, QStringLiteral("1.10"));
    EXPECT_EQ(update->downloadUrl, QUrl(QStringLiteral("https://example.org/Vantle-1.10.tar.gz")));
    EXPECT_EQ(update->length, 1234);
    EXPECT_EQ(update->edSignature, QStringLiteral("c2ln"));
    EXPECT_EQ(update->releaseNotes, QStringLiteral("<p>Notes 1.10</p>"));
    // Versions may sit on the enclosure instead.
    const auto onEnclosure
        = Appcast::newestUpdate(feed(R"(<item><enclosure url="https://example.org/v.zip" length="10"
        sparkle:version="205" sparkle:shortVersionString="2.5" sparkle:edSignature="c2ln"/></item>)"),
            QStringLiteral("1.0"));
    ASSERT_TRUE(onEnclosure);
    EXPECT_EQ(onEnclosure->version, QStringLiteral("205"));
    EXPECT_EQ(onEnclosure->displayVersion, QStringLiteral("2.5"));
}

TEST(Appcast, BrokenOrUselessFeedsOfferNothing)
{
    struct Case {
        const char *what;
        QByteArray feed;
    };
    const Case cases[] = {
        { "same version", feed(item("1.0")) },
        { "downgrade", feed(item("0.9")) },
        { "no enclosure", feed("<item><sparkle:version>2.0</sparkle:version></item>") },
        { "no signature", feed(R"(<item><sparkle:version>2.0</sparkle:version>
            <enclosure url="https://e.org/a" length="5"/></item>)") },
        { "no length", feed(R"(<item><sparkle:version>2.0</sparkle:version>
            <enclosure url="https://e.org/a" sparkle:edSignature="c2ln"/></item>)") },
        { "negative length", feed(R"(<item><sparkle:version>2.0</sparkle:version>
            <enclosure url="https://e.org/a" length="-5" sparkle:edSignature="c2ln"/></item>)") },
        { "file address", feed(R"(<item><sparkle:version>2.0</sparkle:version>
            <enclosure url="file:///etc/passwd" length="5" sparkle:edSignature="c2ln"/></item>)") },
        { "no version",
            feed(
                R"(<item><enclosure url="https://e.org/a" length="5" sparkle:edSignature="c2ln"/></item>)") },
        { "cut off inside the item", feed("").left(200) + item("2.0").left(150) },
        { "not XML", "<item> { \"json\": true }" },
        { "empty", "" },
    };
    for (const Case &c : cases)
        EXPECT_FALSE(Appcast::newestUpdate(c.feed, QStringLiteral("1.0"))) << c.what;
}

TEST(Appcast, AHundredThousandItemsAreReadInOnePass)
{
    QByteArray items;
    for (int i = 0; i < 100000; ++i)
        items += "<item><title>x</title></item>";
    items += item("3.0");
    const auto update = Appcast::newestUpdate(feed(items), QStringLiteral("1.0"));
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, QStringLiteral("3.0"));
}
