#include "platform/NullScreenSampler.h"
#include "platform/ScreenSamplerFactory.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

TEST(ScreenSamplerFactory, ChoosesByOverrideThenSession)
{
    const QString none;
    struct Case {
        QString override, platform, session;
        bool hasX11;
        SamplerBackend expected;
    } cases[] = {
        {none, QStringLiteral("xcb"), QStringLiteral("x11"), true, SamplerBackend::x11},
        {none, QStringLiteral("xcb"), none, true, SamplerBackend::x11},
        {none, QStringLiteral("wayland"), QStringLiteral("wayland"), false, SamplerBackend::portal},
        {none, QStringLiteral("wayland-egl"), none, false, SamplerBackend::portal},
        // Under XWayland the X root shows nothing of the other clients.
        {none, QStringLiteral("xcb"), QStringLiteral("wayland"), true, SamplerBackend::portal},
        {none, QStringLiteral("offscreen"), QStringLiteral("tty"), false, SamplerBackend::none},
        {QStringLiteral("portal"), QStringLiteral("xcb"), QStringLiteral("x11"), true, SamplerBackend::portal},
        {QStringLiteral("X11"), QStringLiteral("xcb"), QStringLiteral("wayland"), true, SamplerBackend::x11},
        {QStringLiteral("x11"), QStringLiteral("wayland"), QStringLiteral("wayland"), false, SamplerBackend::none},
        {QStringLiteral("bogus"), QStringLiteral("xcb"), none, true, SamplerBackend::x11},
    };
    for (const Case &c : cases)
        EXPECT_EQ(chooseSamplerBackend(c.override, c.platform, c.session, c.hasX11), c.expected)
            << (c.override + u' ' + c.platform + u' ' + c.session).toStdString();
}

TEST(ScreenSamplerFactory, NullBackendEndsWithNothingAfterPickReturns)
{
    NullScreenSampler sampler;
    int calls = 0;
    std::optional<SampledColor> result = SampledColor{};
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
