// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingView.h"
#include "screens/OnboardingWindow.h"
#include "services/PreferenceKeys.h"
#include "support/ManualAnimationDriver.h"
#include "support/TempSettings.h"

#include <QAbstractButton>
#include <QImage>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using Step = OnboardingView::Step;

namespace {

struct Onboarding : ::testing::Test {
    Onboarding()
    {
        view = std::make_unique<OnboardingView>(*settings.store, [this] { ++completions; });
        view->show();
    }
    void pressGetStarted()
    {
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, view->getStartedButtonRect().center().toPoint());
    }
    void pressStartUsing()
    {
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, view->startUsingButtonRect().center().toPoint());
    }

    // Walks the clock through a timetable and checks every step fires at its moment (within a
    // frame either way) and, if it ends, has finished when its duration is over.
    void expectTimetable(const QList<OnboardingView::Timing> &timings, qint64 origin, qint64 until)
    {
        for (qint64 t = origin; t <= until; t += 10) {
            driver.advanceTo(t);
            for (const auto &timing : timings) {
                const qint64 since = t - origin - timing.delayMs;
                if (since <= -20) {
                    EXPECT_FALSE(view->hasFired(timing.step)) << int(timing.step) << " at " << t;
                }
                if (since >= 20) {
                    EXPECT_TRUE(view->hasFired(timing.step)) << int(timing.step) << " at " << t;
                }
                if (!timing.repeats && since >= timing.durationMs + 20) {
                    EXPECT_DOUBLE_EQ(view->progress(timing.step), 1) << int(timing.step) << " at " << t;
                }
                if (since <= -20) {
                    EXPECT_DOUBLE_EQ(view->progress(timing.step), 0) << int(timing.step) << " at " << t;
                }
            }
        }
    }

    ManualAnimationDriver driver;
    TempSettings settings;
    int completions = 0;
    std::unique_ptr<OnboardingView> view;
};

} // namespace

TEST_F(Onboarding, WelcomeScreenEntersOnItsTimetable)
{
    EXPECT_EQ(view->currentScreen(), 0);
    expectTimetable(OnboardingView::welcomeEntrance(), 0, 1700);
    // The ease-out title is past its middle a quarter of the way in.
    EXPECT_EQ(view->currentScreen(), 0);
}

TEST_F(Onboarding, WelcomeMotionCurves)
{
    const struct {
        qint64 at;
        Step step;
        qreal low;
        qreal high;
    } moments[] = {
        { 400, Step::IconLanded, 0.3, 0.95 }, // rising on the spring
        { 620, Step::IconLanded, 1.02, 1.07 }, // overshooting near its peak
        { 600, Step::TitleVisible, 0.35, 0.6 }, // a quarter into an ease-out of 0.4 s
        { 1300, Step::ButtonVisible, 0.4, 0.7 }, // a third into 0.3 s
        { 2300, Step::GlowPulse, 0.45, 0.55 }, // halfway up, 1 s into 2 s
        { 3300, Step::GlowPulse, 0.99, 1.0 }, // fully up after 2 s
        { 4300, Step::GlowPulse, 0.45, 0.55 }, // and coming back down
        { 5300, Step::GlowPulse, 0.0, 0.01 }, // down again after 4 s
        { 6300, Step::GlowPulse, 0.45, 0.55 }, // and repeating
    };
    for (const auto &m : moments) {
        driver.advanceTo(m.at);
        EXPECT_GE(view->progress(m.step), m.low) << m.at;
        EXPECT_LE(view->progress(m.step), m.high) << m.at;
    }
}

TEST_F(Onboarding, GetStartedRecordsThePreferenceThenShowsTheConfirmation)
{
    QSignalSpy writes(settings.store.get(), &SettingsStore::changed);
    driver.advanceTo(1000);
    pressGetStarted(); // not there yet: nothing happens
    EXPECT_EQ(view->currentScreen(), 0);
    EXPECT_EQ(writes.count(), 0);

    driver.advanceTo(1500);
    pressGetStarted();
    EXPECT_EQ(view->currentScreen(), 1);
    ASSERT_EQ(writes.count(), 1);
    EXPECT_EQ(writes.at(0).at(0).toString(), PreferenceKeys::onboardingShown);
    EXPECT_TRUE(settings.reopen()->boolForKey(PreferenceKeys::onboardingShown));
    EXPECT_EQ(completions, 0);

    expectTimetable(OnboardingView::confirmationEntrance(), 1500, 1500 + 2600);

    // Pressing the welcome button's place again does not go back or write again.
    pressGetStarted();
    EXPECT_EQ(view->currentScreen(), 1);
    EXPECT_EQ(writes.count(), 1);
}

TEST_F(Onboarding, ConfirmationDrawsTheRingThenTheCheckMarkAndKeepsMoving)
{
    driver.advanceTo(1300);
    pressGetStarted();
    const qint64 press = 1300;
    const struct {
        qint64 at;
        qreal circle;
        qreal check;
        qreal glow;
        qreal shimmer;
    } moments[] = {
        { 490, 0, 0, 0.3, 0 }, { 700, -1, 0, 0.3, 0 }, // ring under way, check mark not yet
        { 910, 1, -1, 0.3, 0 }, // ring closed, check mark starting
        { 1210, 1, 1, -1, 0 }, // green glow starting
        { 2400, 1, 1, 1.0, -1 }, // green glow fully up after 1.2 s
        { 3000, 1, 1, 0.65, 0.35 }, // glow halfway back down, shimmer a third across
        { 3600, 1, 1, 0.3, 0.65 }, // glow back at rest
        { 4290, 1, 1, -1, 0.995 }, // end of the first sweep
        { 4310, 1, 1, -1, 0.005 }, // the band starts again from the leading side
    };
    for (const auto &m : moments) {
        driver.advanceTo(press + m.at);
        const auto expectNear = [&](qreal actual, qreal expected, const char *what) {
            if (expected >= 0) {
                EXPECT_NEAR(actual, expected, 0.02) << what << " at " << m.at;
            } else {
                EXPECT_TRUE(actual > 0 && actual < 1.0) << what << " at " << m.at << ": " << actual;
            }
        };
        expectNear(view->circleTrim(), m.circle, "ring");
        expectNear(view->checkmarkTrim(), m.check, "check mark");
        if (m.glow >= 0) {
            EXPECT_NEAR(view->glowOpacity(), m.glow, 0.02) << "glow at " << m.at;
        } else {
            EXPECT_TRUE(view->glowOpacity() > 0.3 && view->glowOpacity() < 1) << m.at;
        }
        expectNear(view->shimmerPhase(), m.shimmer, "shimmer");
    }
}

TEST_F(Onboarding, StartUsingOnlyCallsOnComplete)
{
    driver.advanceTo(1300);
    pressGetStarted();
    QSignalSpy writes(settings.store.get(), &SettingsStore::changed);
    driver.advanceTo(1300 + 2000);
    pressStartUsing(); // still invisible
    EXPECT_EQ(completions, 0);
    driver.advanceTo(1300 + 2500);
    pressStartUsing();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(writes.count(), 0);
}

TEST_F(Onboarding, ClosingStopsEveryAnimation)
{
    driver.advanceTo(1300);
    pressGetStarted();
    driver.advanceTo(1300 + 2500);
    EXPECT_TRUE(view->isAnimating());
    view->hide();
    EXPECT_FALSE(view->isAnimating());
    const qreal shimmer = view->shimmerPhase();
    driver.advanceTo(1300 + 3000);
    EXPECT_EQ(view->shimmerPhase(), shimmer);
    EXPECT_FALSE(driver.isRunning()); // nothing left to wake the program
}

TEST_F(Onboarding, StepsAfterTheViewIsGoneDoNothing)
{
    driver.advanceTo(1300);
    pressGetStarted();
    driver.advanceTo(1400);
    view.reset(); // the host dropped it with every step still pending
    driver.advanceTo(4000);
    EXPECT_FALSE(driver.isRunning());
}

TEST(OnboardingViewCallback, HostMayDestroyTheViewInsideOnComplete)
{
    ManualAnimationDriver driver;
    TempSettings settings;
    QPointer<OnboardingView> view;
    view = new OnboardingView(*settings.store, [&] { delete view.data(); });
    view->show();
    driver.advanceTo(1300);
    view->getStarted();
    driver.advanceTo(1300 + 2500);
    view->startUsing();
    EXPECT_TRUE(view.isNull());
}

TEST_F(Onboarding, PaintsTheScreensInTheirColours)
{
    const auto colourAt = [&](const QPointF &point) {
        return view->grab().toImage().pixelColor(point.toPoint() * view->devicePixelRatioF());
    };
    driver.advanceTo(1700);
    if (qEnvironmentVariableIsSet("VANTLE_SHOT_DIR"))
        view->grab().save(qEnvironmentVariable("VANTLE_SHOT_DIR") + QStringLiteral("/welcome-offscreen.png"));
    EXPECT_EQ(colourAt(QPointF(8, view->height() / 2)), QColor(0x0D, 0x11, 0x17)); // clear of the glow
    EXPECT_EQ(colourAt(QPointF(1, 1)).alpha(), 0); // outside the rounded corner
    const QRectF button = view->getStartedButtonRect();
    EXPECT_EQ(colourAt(QPointF(button.left() + 10, button.center().y())), QColor(0xFF, 0x6B, 0x35));

    pressGetStarted();
    driver.advanceTo(1700 + 1250);
    // The ring's top, fully drawn in the success green.
    const QRectF startUsing = view->startUsingButtonRect();
    Q_UNUSED(startUsing);
    bool greenFound = false;
    const QImage shot = view->grab().toImage();
    for (int y = 0; y < shot.height() / 2 && !greenFound; ++y)
        greenFound = shot.pixelColor(shot.width() / 2, y) == QColor(0x34, 0xC7, 0x59);
    EXPECT_TRUE(greenFound);
}

TEST(OnboardingWindowTest, IsAFramelessFloatingWindowOfItsSize)
{
    TempSettings settings;
    OnboardingWindow window(
        *settings.store, [] {}, false);
    // 520 × 420, taller only as far as the desktop's fonts need to keep the layout's spacing.
    EXPECT_EQ(window.width(), 520);
    EXPECT_GE(window.height(), 420);
    EXPECT_EQ(window.size(), window.view()->size());
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(window.testAttribute(Qt::WA_TranslucentBackground));
    window.present();
    QSignalSpy closed(&window, &OnboardingWindow::closed);
    auto *close = window.findChild<QAbstractButton *>(QStringLiteral("onboardingClose"));
    ASSERT_NE(close, nullptr);
    close->click();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.view()->isAnimating());
    EXPECT_FALSE(settings.store->boolForKey(PreferenceKeys::onboardingShown));
}
