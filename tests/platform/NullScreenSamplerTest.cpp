// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NullScreenSampler.h"

#include <QTest>
#include <gtest/gtest.h>

TEST(NullScreenSampler, EndsWithNothingAfterPickReturns)
{
    NullScreenSampler sampler;
    int calls = 0;
    std::optional<SampledColor> result = SampledColor {};
    sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> color) {
        ++calls;
        result = color;
    });
    EXPECT_EQ(calls, 0) << "the completion ran inside pick()";
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, 5000));
    QTest::qWait(20);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(result);
}
