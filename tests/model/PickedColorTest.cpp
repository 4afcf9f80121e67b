#include "model/PickedColor.h"

#include <QDateTime>
#include <QJsonDocument>
#include <cmath>
#include <gtest/gtest.h>

namespace {

PickedColor sample(const char *uuid, double r, std::optional<QString> name = std::nullopt, bool pinned = false)
{
    PickedColor c;
    c.id = QUuid::fromString(QLatin1String(uuid));
    c.red = r;
    c.green = 0.42;
    c.blue = 0.21;
    c.alpha = 1.0;
    c.name = std::move(name);
    c.isPinned = pinned;
    c.timestamp = 785000000.125;
    return c;
}

} // namespace

TEST(PickedColor, EncodesTheExactStoredForm)
{
    const PickedColor c = sample("6f9619ff-8b86-d011-b42d-00c04fc964ff", 1.0, QStringLiteral("Sky/Sea \"1\""), true);
    const auto json = encodeColorHistory({c});
    ASSERT_TRUE(json);
    EXPECT_EQ(*json,
              R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":0.42,"blue":0.21,"alpha":1,)"
              R"("name":"Sky\/Sea \"1\"","isPinned":true,"timestamp":785000000.125}])");
    // No name: the key is left out, never null.
    const auto unnamed = encodeColorHistory({sample("6f9619ff-8b86-d011-b42d-00c04fc964ff", 0.5)});
    ASSERT_TRUE(unnamed);
    EXPECT_FALSE(unnamed->contains("name"));
    EXPECT_EQ(encodeColorHistory({}), QByteArray("[]"));
}

TEST(PickedColor, RoundTripsEveryValueExactly)
{
    // A leading U+FEFF would read as a byte-order mark, halves of pairs have no UTF-8 form.
    const QString names[] = { QStringLiteral("Ünïcødé 🎨 \t\n\x01 /\\"), QStringLiteral("\uFEFF\uFEFFmarks"),
        QStringView(u"\xDC00\xD800 halves").toString() };
    QList<PickedColor> colors;
    for (double v : {0.1, 1.0 / 3.0, 1.02, -0.01, 5e-324, 0.30000000000000004}) {
        PickedColor c = PickedColor::fromSample(v, v / 7, 1 - v, 0.75);
        c.name = names[colors.size() % 3];
        colors.append(c);
    }
    colors.append(PickedColor::fromSample(0, 0, 0, 1));
    colors.last().name = QString(); // an empty name survives as an empty name
    colors.last().isPinned = true;
    const auto json = encodeColorHistory(colors);
    ASSERT_TRUE(json);
    EXPECT_TRUE(QJsonDocument::fromJson(*json).isArray()) << "valid JSON";
    EXPECT_EQ(decodeColorHistory(*json), colors);
}

TEST(PickedColor, ReadsHandWrittenHistoriesLeniently)
{
    // Any key order, unknown keys, null name, integral numbers, lower-case UUID, plain slash,
    // blanks between tokens.
    const QByteArray json = R"([ {"timestamp": 0, "isPinned": false, "extra": [1, {"x": 2}], "name": null,
        "alpha": 1, "blue": 0, "green": 1, "red": 0, "id": "6f9619ff-8b86-d011-b42d-00c04fc964ff"},
        {"id":"6F9619FF-8B86-D011-B42D-00C04FC964FE","red":0.5,"green":0.5,"blue":0.5,"alpha":1,
         "name":"a/b","isPinned":true,"timestamp":1.5} ])";
    const auto colors = decodeColorHistory(json);
    ASSERT_TRUE(colors);
    ASSERT_EQ(colors->size(), 2);
    EXPECT_EQ((*colors)[0].name, std::nullopt);
    EXPECT_EQ((*colors)[0].timestamp, 0.0);
    EXPECT_EQ((*colors)[0].green, 1.0);
    EXPECT_EQ((*colors)[0].id, QUuid::fromString(QStringLiteral("6F9619FF-8B86-D011-B42D-00C04FC964FF")));
    EXPECT_EQ((*colors)[1].name, QStringLiteral("a/b"));
    EXPECT_TRUE((*colors)[1].isPinned);
}

TEST(PickedColor, OneBadElementRejectsTheWholeHistory)
{
    const QByteArray good = R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})";
    const QByteArray bad[] = {
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"timestamp":0})", // no isPinned
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false})", // no timestamp
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"not-a-uuid","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"{6F9619FF-8B86-D011-B42D-00C04FC964FF}","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":"1","green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":0,"timestamp":0})",
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0,"name":5})",
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1e999,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"(7)",
    };
    ASSERT_TRUE(decodeColorHistory("[" + good + "]"));
    for (const QByteArray &element : bad)
        EXPECT_FALSE(decodeColorHistory("[" + good + "," + element + "]")) << element.constData();
    for (const char *notAHistory : {"", "{}", "null", "[", "\xff\xfe", "[1,2"})
        EXPECT_FALSE(decodeColorHistory(notAHistory)) << notAHistory;
}

TEST(PickedColor, EqualityIsAllFieldsIdentityIsId)
{
    const PickedColor a = PickedColor::fromSample(1, 0.5, 0, 1);
    PickedColor renamed = a;
    renamed.name = QStringLiteral("x");
    PickedColor pinned = a;
    pinned.isPinned = true;
    EXPECT_NE(a, renamed);
    EXPECT_NE(a, pinned);
    EXPECT_EQ(a.id, renamed.id);
    EXPECT_NE(PickedColor::fromSample(1, 0.5, 0, 1).id, a.id);
    // Picked now, in seconds since 2001 (not the Unix epoch).
    EXPECT_NEAR(a.timestamp + referenceDateOffset, QDateTime::currentSecsSinceEpoch(), 5);
}

TEST(PickedColor, EncodingFailsForNumbersJsonCannotHold)
{
    EXPECT_FALSE(encodeColorHistory({PickedColor::fromSample(std::nan(""), 0, 0, 1)}));
    EXPECT_FALSE(encodeColorHistory({PickedColor::fromSample(0, 0, 0, INFINITY)}));
}
