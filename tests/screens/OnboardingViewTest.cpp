// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingView.h"
#include "screens/OnboardingWindow.h"
#include "services/PreferenceKeys.h"
#include "support/ManualAnimationDriver.h"
#include "support/TempSettings.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct Onboarding : ::testing::Test {
    Onboarding()
    {
        view = std::make_unique<OnboardingView>(*settings.store, [this] { ++completions; });
        view->show();
    }
    void press(const QRectF &button)
    {
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, button.center().toPoint());
    }

    ManualAnimationDriver driver;
    TempSettings settings;
    int completions = 0;
    std::unique_ptr<OnboardingView> view;
};

} // namespace

TEST_F(Onboarding, ButtonsWorkOnlyOnceShownAndOnlyGetStartedWrites)
{
    QSignalSpy writes(settings.store.get(), &SettingsStore::changed);
    driver.advanceTo(1000);
    press(view->getStartedButtonRect()); // not there yet: nothing happens
    EXPECT_EQ(view->currentScreen(), 0);
    EXPECT_EQ(writes.count(), 0);

    driver.advanceTo(1500);
    press(view->getStartedButtonRect());
    EXPECT_EQ(view->currentScreen(), 1);
    ASSERT_EQ(writes.count(), 1);
    EXPECT_TRUE(settings.reopen()->boolForKey(PreferenceKeys::onboardingShown));
    // Pressing the welcome button's place again does not go back or write again.
    press(view->getStartedButtonRect());
    EXPECT_EQ(view->currentScreen(), 1);

    driver.advanceTo(1500 + 2000);
    press(view->startUsingButtonRect()); // still invisible
    EXPECT_EQ(completions, 0);
    driver.advanceTo(1500 + 2500);
    press(view->startUsingButtonRect());
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(writes.count(), 1);
}

// A hidden or dropped view must leave nothing that wakes the program (a tray program idles).
TEST_F(Onboarding, ClosingOrDroppingTheViewStopsEveryAnimation)
{
    driver.advanceTo(1300);
    view->getStarted();
    driver.advanceTo(1300 + 2500);
    EXPECT_TRUE(view->isAnimating());
    view->hide();
    EXPECT_FALSE(view->isAnimating());
    driver.advanceTo(1300 + 3000); // the shimmer too would run on the driver
    EXPECT_FALSE(driver.isRunning());

    auto dropped = std::make_unique<OnboardingView>(*settings.store, [] {});
    dropped->show();
    driver.advanceTo(4000);
    dropped->getStarted();
    driver.advanceTo(4100);
    dropped.reset(); // the host dropped it with every step still pending
    driver.advanceTo(7000);
    EXPECT_FALSE(driver.isRunning());
}
