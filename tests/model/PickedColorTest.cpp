// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/PickedColor.h"
#include "model/ColorHistoryCodec.h"

#include <QDateTime>
#include <cmath>
#include <gtest/gtest.h>

namespace {

PickedColor sample(std::optional<QString> name = std::nullopt)
{
    return { QUuid::fromString(QLatin1String("6f9619ff-8b86-d011-b42d-00c04fc964ff")), 1.0, 0.42, 0.21, 1.0,
        std::move(name), true, 785000000.125 };
}

} // namespace

TEST(PickedColor, EncodesTheExactStoredForm)
{
    const auto json = encodeColorHistory({ sample(QStringLiteral("Sky/Sea \"1\" \\")) });
    ASSERT_TRUE(json);
    EXPECT_EQ(*json,
        R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","red":1,"green":0.42,"blue":0.21,"alpha":1,)"
        R"("name":"Sky\/Sea \"1\" \\","isPinned":true,"timestamp":785000000.125}])");
    // No name: the key is left out, never null.
    EXPECT_FALSE(encodeColorHistory({ sample() }).value_or("name").contains("name"));
    EXPECT_EQ(encodeColorHistory({}), QByteArray("[]"));
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
        { R"("red":0,"name":null,"extra":[1,{"x":2}])", 0.0 }, // unknown keys, a null name
        { R"("red":-0)", 0.0 }, // and not -0
        { R"("red":1e-400)", std::nullopt }, // not zero, and no double holds it
        { R"("red":01)", std::nullopt },
        { R"("red":"1","red":2)", 2.0 }, // the last of a repeated key counts
        { R"("red":2,"red":"1")", std::nullopt },
        { R"("r\u0065d":3)", 3.0 },
        { R"("red":0,"name":"\u00e9\ud83c\udf05\udc00")", 0.0, u"é🌅\xDC00" },
        { R"("red":0,"name":"\q\/\x")", 0.0, u"q/x" },
        { "\"red\":0,\"name\":\"\xEF\xBB\xBF\xEF\xBB\xBF\"", 0.0,
            u"\uFEFF" }, // one raw mark first is dropped
        { "\"red\":0,\"name\":\"\xC0\x80\"", std::nullopt },
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
    // Each change made to a copy of the good element.
    const std::pair<QByteArray, QByteArray> changes[] = {
        { R"("red":1,)", "" }, // every number is read alike
        { R"("6F)", R"("\u0661F)" }, // a digit beyond ASCII
        { "6F9619FF-8B86-D011-B42D-00C04FC964FF", "{6F9619FF-8B86-D011-B42D-00C04FC964FF}" },
        { R"("red":1)", R"("red":"1")" },
        { "false", "0" },
        { R"("timestamp":0)", R"("timestamp":0,"name":5)" },
        { R"("red":1)", R"("red":1e999)" },
        { good, "7" },
    };
    ASSERT_TRUE(decodeColorHistory("[" + good + "]"));
    for (const auto &[from, to] : changes)
        EXPECT_FALSE(decodeColorHistory("[" + good + "," + QByteArray(good).replace(from, to) + "]"))
            << to.constData();
    for (const char *notAHistory :
        { "", "{}", "null", "[", "\xff\xfe", "[1,2", "[]x", "[] []", " \xEF\xBB\xBF[]" })
        EXPECT_FALSE(decodeColorHistory(notAHistory)) << notAHistory;
    EXPECT_EQ(decodeColorHistory("\xEF\xBB\xBF [ ]\r\n"), QList<PickedColor>());
}

TEST(PickedColor, PickedNowInSecondsSince2001AndNumbersJsonCannotHoldAreNotWritten)
{
    EXPECT_NEAR(PickedColor::fromSample(1, 0.5, 0, 1).timestamp + referenceDateOffset,
        QDateTime::currentSecsSinceEpoch(), 5);
    EXPECT_FALSE(encodeColorHistory({ PickedColor::fromSample(std::nan(""), 0, 0, 1) }));
    EXPECT_FALSE(encodeColorHistory({ PickedColor::fromSample(0, 0, 0, INFINITY) }));
}
