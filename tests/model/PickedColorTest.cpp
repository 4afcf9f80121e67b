// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/PickedColor.h"
#include "model/ColorHistoryCodec.h"

#include <QDateTime>
#include <QJsonDocument>
#include <cmath>
#include <gtest/gtest.h>

namespace {

PickedColor sample(
    const char *uuid, double r, std::optional<QString> name = std::nullopt, bool pinned = false)
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
    const PickedColor c
        = sample("6f9619ff-8b86-d011-b42d-00c04fc964ff", 1.0, QStringLiteral("Sky/Sea \"1\""), true);
    const auto json = encodeColorHistory({ c });
    ASSERT_TRUE(json);
    EXPECT_EQ(*json,
        R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":0.42,"blue":0.21,"alpha":1,)"
        R"("name":"Sky\/Sea \"1\"","isPinned":true,"timestamp":785000000.125}])");
    // No name: the key is left out, never null.
    const auto unnamed = encodeColorHistory({ sample("6f9619ff-8b86-d011-b42d-00c04fc964ff", 0.5) });
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
    for (double v : { 0.1, 1.0 / 3.0, 1.02, -0.01, 5e-324, 0.30000000000000004 }) {
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

TEST(PickedColor, ReadsWhatEarlierVersionsRead)
{
    // Every history so far was read by QJsonDocument, whose leniencies and limits stay.
    struct Reading {
        QByteArray members;
        std::optional<double> red; // none: the history is rejected
        const char16_t *name = nullptr;
    };
    const QByteArray nested
        = QByteArray(1022, '[') + QByteArray(1022, ']'); // 1024 levels with the history's two
    const Reading readings[] = {
        { R"("red":1.)", 1.0 },
        { R"("red":.5)", 0.5 },
        { R"("red":-0)", 0.0 }, // and not -0
        { R"("red":5e-324)", 5e-324 },
        { R"("red":0e-400)", 0.0 },
        { R"("red":1e-400)", std::nullopt }, // not zero, and no double holds it
        { R"("red":01)", std::nullopt },
        { R"("red":1e)", std::nullopt },
        { R"("red":+1)", std::nullopt },
        { R"("red":"1","red":2)", 2.0 }, // the last of a repeated key counts
        { R"("red":2,"red":"1")", std::nullopt },
        { R"("r\u0065d":3)", 3.0 },
        { "\"\xEF\xBB\xBFred\":3", std::nullopt },
        { R"("red":0,"name":"\u00e9\ud83c\udf05\udc00")", 0.0, u"é🌅\xDC00" },
        { R"("red":0,"name":"\q\/\x")", 0.0, u"q/x" },
        { "\"red\":0,\"name\":\"a\tb\x01\"", 0.0, u"a\tb\x01" },
        { "\"red\":0,\"name\":\"\xEF\xBB\xBF\xEF\xBB\xBF\"", 0.0,
            u"\uFEFF" }, // one raw mark first is dropped
        { "\"red\":0,\"name\":\"\xC0\x80\"", std::nullopt },
        { "\"red\":0,\"name\":\"\xED\xA0\x80\"", std::nullopt },
        { R"("red":0,"name":"\u12")", std::nullopt },
        { R"("red":0,"x":)" + nested, 0.0 },
        { R"("red":0,"x":[)" + nested + "]", std::nullopt },
    };
    for (const Reading &r : readings) {
        SCOPED_TRACE(r.members.constData());
        const auto colors = decodeColorHistory(
            R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","green":0,"blue":0,"alpha":1,"isPinned":false,)"
            R"("timestamp":0,)"
            + r.members + "}]");
        ASSERT_EQ(colors.has_value(), r.red.has_value());
        if (!colors)
            continue;
        EXPECT_EQ(colors->at(0).red, *r.red);
        EXPECT_FALSE(std::signbit(colors->at(0).red));
        EXPECT_EQ(colors->at(0).name, r.name ? std::optional(QStringView(r.name).toString()) : std::nullopt);
    }
}

TEST(PickedColor, OneBadElementRejectsTheWholeHistory)
{
    const QByteArray good
        = R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})";
    const QByteArray bad[] = {
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"timestamp":0})", // no isPinned
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false})", // no timestamp
        R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"not-a-uuid","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
        R"({"id":"\u0661F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":1,"blue":1,"alpha":1,"isPinned":false,"timestamp":0})",
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
    for (const char *notAHistory :
        { "", "{}", "null", "[", "\xff\xfe", "[1,2", "[]x", "[] []", " \xEF\xBB\xBF[]" })
        EXPECT_FALSE(decodeColorHistory(notAHistory)) << notAHistory;
    EXPECT_EQ(decodeColorHistory("\xEF\xBB\xBF [ ]\r\n"), QList<PickedColor>());
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
    EXPECT_FALSE(encodeColorHistory({ PickedColor::fromSample(std::nan(""), 0, 0, 1) }));
    EXPECT_FALSE(encodeColorHistory({ PickedColor::fromSample(0, 0, 0, INFINITY) }));
}
