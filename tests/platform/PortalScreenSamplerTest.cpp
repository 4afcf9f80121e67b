// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalScreenSampler.h"
#include "FakeScreenshotPortal.h"
#include "platform/portal/PortalRequest.h"

#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

// Runs on a private session bus (dbus-run-session): the fake portal and the client meet there.

namespace {

struct PickOutcome {
    int calls = 0;
    bool ranInsidePick = false;
    std::optional<SampledColor> color;
};

PickOutcome pickOnce(PortalScreenSampler &sampler)
{
    PickOutcome outcome;
    bool insidePick = true;
    sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> color) {
        ++outcome.calls;
        outcome.ranInsidePick = insidePick;
        outcome.color = color;
    });
    insidePick = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.calls > 0; }, 10000));
    QTest::qWait(50); // room for a second, wrong completion to show
    return outcome;
}

} // namespace

TEST(PortalRequest, HandlePathFromUniqueNameAndToken)
{
    EXPECT_EQ(PortalRequest::handlePath(QStringLiteral(":1.42"), QStringLiteral("vantle_1_7")),
        u"/org/freedesktop/portal/desktop/request/1_42/vantle_1_7");
}

TEST(PortalScreenSampler, AnswersOfThePortal)
{
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";
    FakeScreenshotPortal portal(QStringLiteral("fake-portal"));
    ASSERT_TRUE(portal.isRegistered());
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    using Answer = FakeScreenshotPortal::Answer;
    struct Case {
        Answer answer;
        bool picks;
        const char *what;
    } cases[] = {
        { Answer::picked, true, "picked" },
        { Answer::cancelled, false, "cancelled by the user" },
        { Answer::failed, false, "ended by the portal" },
        { Answer::responseFirst, true, "Response before the method's reply" },
        { Answer::otherHandle, true, "another handle returned" },
        { Answer::error, false, "the method failed" },
        { Answer::picked, true, "picked again after a failure" },
    };
    for (const Case &c : cases) {
        portal.answer = c.answer;
        const PickOutcome outcome = pickOnce(sampler);
        EXPECT_EQ(outcome.calls, 1) << c.what;
        EXPECT_FALSE(outcome.ranInsidePick) << c.what;
        ASSERT_EQ(outcome.color.has_value(), c.picks) << c.what;
        if (c.picks) {
            // Exactly the doubles the portal sent: nothing rounded to 8 bits on the way.
            EXPECT_EQ(outcome.color->red, 0.9999) << c.what;
            EXPECT_EQ(outcome.color->green, 0.5) << c.what;
            EXPECT_EQ(outcome.color->blue, 0.00196) << c.what;
            EXPECT_EQ(outcome.color->alpha, 1.0) << c.what;
        }
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[A-Za-z0-9_]+$")).match(portal.lastToken).hasMatch())
            << portal.lastToken.toStdString();
    }
    EXPECT_EQ(portal.calls, int(std::size(cases)));
}

TEST(PortalScreenSampler, NoPortalEndsWithNothingQuietly)
{
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    const PickOutcome outcome = pickOnce(sampler);
    EXPECT_EQ(outcome.calls, 1);
    EXPECT_FALSE(outcome.ranInsidePick);
    EXPECT_FALSE(outcome.color);
}

TEST(PortalScreenSampler, SecondPickWhileOneRunsEndsWithNothing)
{
    FakeScreenshotPortal portal(QStringLiteral("fake-portal-2"));
    ASSERT_TRUE(portal.isRegistered());
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    int firstCalls = 0, secondCalls = 0;
    std::optional<SampledColor> first, second = SampledColor {};
    sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> c) { ++firstCalls, first = c; });
    sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> c) { ++secondCalls, second = c; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return firstCalls && secondCalls; }, 10000));
    EXPECT_TRUE(first);
    EXPECT_FALSE(second);
    EXPECT_EQ(portal.calls, 1);
}
