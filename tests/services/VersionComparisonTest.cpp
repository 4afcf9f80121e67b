// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/VersionComparison.h"

#include <gtest/gtest.h>

TEST(VersionComparison, ComparesPartByPartAsNumbers)
{
    const struct {
        const char *a, *b;
        int expected;
    } cases[] = {
        { "1.10", "1.9", 1 }, // not as decimals
        { "1.0", "1", 0 },
        { "1.0.1", "1.0", 1 },
        { "1.2b1", "1.2", -1 }, // a pre-release comes before its release
        { "1.2b2", "1.2b10", -1 }, // suffixes compare as text
        { " 1.4 ", "1.4", 0 },
        { "99999999999999999999999.0", "1.0", 1 }, // saturates, never wraps
        { "", "0", 0 },
        { "abc", "1", -1 },
    };
    for (const auto &c : cases) {
        const int result = compareVersions(QString::fromLatin1(c.a), QString::fromLatin1(c.b));
        EXPECT_EQ((result > 0) - (result < 0), c.expected) << c.a << " vs " << c.b;
    }
}
