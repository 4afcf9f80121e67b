// SPDX-License-Identifier: GPL-3.0-or-later
// Offscreen there is no tray host: the delegate stays in its waiting state.
#include "app/AppDelegate.h"
#include "app/StatusIcon.h"
#include "platform/network/QtUpdateNetwork.h"
#include "platform/portal/AppearanceMonitor.h"
#include "screens/DialogUpdateInterface.h"
#include "screens/OnboardingWindow.h"
#include "screens/Symbols.h"
#include "services/PreferenceKeys.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace PreferenceKeys;

namespace {

class AppDelegateTest : public ::testing::Test, public FakeHistoryFacilities {
protected:
    void launch()
    {
        delegate
            = std::make_unique<AppDelegate>(AppDelegate::Facilities { *settings.store, sampler, clipboard,
                confirmation, dialogs, shortcuts, loginItems, appearance, network, updateInterface, false });
        delegate->applicationDidFinishLaunching();
    }

    TempSettings settings;
    FakeShortcutBackend shortcuts;
    FakeLoginItemService loginItems;
    AppearanceMonitor appearance;
    QtUpdateNetwork network;
    DialogUpdateInterface updateInterface; // never shown: the test build has no feed address
    std::unique_ptr<AppDelegate> delegate;
};

TEST_F(AppDelegateTest, OnlyAnUnsetShortcutIsSeeded)
{
    // -2 is a shortcut the user turned off; -1 one never set; 42 a shortcut of their own.
    const struct {
        qint64 stored, expected;
        int registered;
    } cases[] = { { -2, -2, 1 }, { -1, 8, 2 }, { 42, 42, 2 } };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.stored);
        settings.store->setInteger(pickKeyCode, c.stored);
        settings.store->setInteger(pickModifiers, 4096);
        shortcuts.registered.clear();
        launch();
        EXPECT_EQ(settings.store->integerForKey(pickKeyCode), c.expected);
        EXPECT_EQ(settings.store->integerForKey(pickModifiers), c.stored == -1 ? 655360 : 4096);
        EXPECT_EQ(shortcuts.registered.size(), c.registered);
        delegate.reset();
    }
}

TEST_F(AppDelegateTest, OnlyTheFirstLaunchGreets)
{
    launch();
    ASSERT_NE(delegate->onboardingWindow(), nullptr);
    EXPECT_TRUE(delegate->onboardingWindow()->isVisible());
    delegate.reset();
    settings.store->setBool(onboardingShown, true); // as the welcome's Get Started does
    launch();
    EXPECT_EQ(delegate->onboardingWindow(), nullptr);
}

TEST_F(AppDelegateTest, ShortcutsFireTheirReactionsAfterTheSignalAndQuitReleasesThem)
{
    launch();
    shortcuts.press(shortcuts.registered.first().id);
    EXPECT_EQ(sampler.pickCount, 0); // not inside the shortcut's signal
    QTRY_COMPARE(sampler.pickCount, 1); // a second trigger during the pick is the model's test
    sampler.cancel();

    delegate->applicationWillTerminate();
    EXPECT_TRUE(shortcuts.registered.isEmpty());
}

} // namespace

// The tray icon paints the eyedropper itself, so that the start needs no SVG renderer; it must
// stay the symbol every screen draws from its SVG (which also shows the SVG plugin is there).
TEST(StatusIconTest, TrayIconIsTheEyedropperSymbol)
{
    for (const bool dark : { false, true }) {
        const QImage tray = StatusIcon::plainIcon(dark, 2.0).convertToFormat(QImage::Format_ARGB32);
        const QImage symbol = Symbols::pixmap(
            QStringLiteral("eyedropper"), StatusIcon::symbolSize, StatusIcon::tintFor(dark), 2.0)
                                  .toImage()
                                  .convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(tray.size(), symbol.size());
        int worst = 0, covered = 0;
        for (int y = 0; y < tray.height(); ++y)
            for (int x = 0; x < tray.width(); ++x) {
                const QRgb a = tray.pixel(x, y), b = symbol.pixel(x, y);
                worst = qMax(worst, qAbs(qAlpha(a) - qAlpha(b)));
                covered += qAlpha(b) > 128;
                if (qAlpha(a) > 128) {
                    EXPECT_EQ(a & 0xFFFFFF, StatusIcon::tintFor(dark).rgb() & 0xFFFFFF);
                }
            }
        EXPECT_GT(covered, tray.width() * tray.height() / 8) << "the symbol drew nothing";
        EXPECT_LE(worst, 16) << "the tray icon and the symbol differ";
    }
}
