// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/PaletteExport.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace {

const PickedColor sunset = makeColor(1.0, 0.42, 0.21, false, QStringLiteral("Sunset"));
const PickedColor blue = makeColor(0.2, 0.4, 0.8);

TEST(PaletteExportTest, TextLayout)
{
    struct Case {
        const char *what;
        QList<PickedColor> colors;
        ColorFormat format;
        QByteArray expected;
    };
    const Case cases[] = {
        { "named and unnamed in the given format, no final line feed", { sunset, blue }, ColorFormat::css,
            "Sunset: rgba(255, 107, 54, 1.0)\nrgba(51, 102, 204, 1.0)" },
        { "empty name is no name", { makeColor(1, 0.42, 0.21, false, QString()) }, ColorFormat::rgb,
            "rgb(255, 107, 54)" },
        { "slash, quote and blanks unchanged, UTF-8",
            { makeColor(0.2, 0.4, 0.8, false, QStringLiteral(" a/b \"océan\" ")) }, ColorFormat::hexLower,
            " a/b \"oc\xc3\xa9"
            "an\" : #3366cc" },
        { "empty list", {}, ColorFormat::hex, "" },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(exportText(c.colors, c.format), c.expected);
    }
}

TEST(PaletteExportTest, JsonLayout)
{
    EXPECT_EQ(exportJSON({ sunset, blue }),
        "[\n  {\n    \"hex\" : \"#FF6B36\",\n    \"hsl\" : \"hsl(16, 100%, 61%)\",\n"
        "    \"name\" : \"Sunset\",\n    \"rgb\" : \"rgb(255, 107, 54)\"\n  },\n  {\n"
        "    \"hex\" : \"#3366CC\",\n    \"hsl\" : \"hsl(220, 60%, 50%)\",\n"
        "    \"rgb\" : \"rgb(51, 102, 204)\"\n  }\n]");
    // Slash, quote, backslash and control characters escaped; an empty name is no name.
    EXPECT_TRUE(exportJSON({ makeColor(0, 0, 0, false, QStringLiteral("a/b \"c\" \\ \t")) })
                    .contains("    \"name\" : \"a\\/b \\\"c\\\" \\\\ \\t\",\n"));
    EXPECT_FALSE(exportJSON({ makeColor(1, 1, 1, false, QString()) }).contains("name"));
    EXPECT_EQ(exportJSON({ sunset, makeColor(0, 0, 0, false, QString(QChar(0xD800))) }), "[]"); // half a pair
}

} // namespace
