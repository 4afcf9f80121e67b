// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsViewModel.h"
#include "services/XdgAutostartService.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

struct Autostart {
    QTemporaryDir dir;
    QString entryPath = dir.filePath(QStringLiteral("autostart/vantle.desktop"));
    XdgAutostartService service { entryPath, QStringLiteral("/opt/My Apps/vantle \"$HOME\" 100%.AppImage") };
};

} // namespace

TEST(XdgAutostartService, EntryStartsTheProgramWithExecQuoting)
{
    Autostart a;
    EXPECT_FALSE(a.service.isEnabled());
    ASSERT_TRUE(a.service.registerItem());
    EXPECT_TRUE(a.service.isEnabled());
    // Exec quoting escapes '"' and '$' with a backslash, the string escape doubles it again,
    // and a literal percent sign is doubled.
    QFile entry(a.entryPath);
    EXPECT_TRUE(entry.open(QIODevice::ReadOnly)
        && entry.readAll().contains(R"(Exec="/opt/My Apps/vantle \\"\\$HOME\\" 100%%.AppImage")"));
    EXPECT_TRUE(a.service.unregisterItem());
    EXPECT_FALSE(QFile::exists(a.entryPath));
    EXPECT_TRUE(a.service.unregisterItem()) << "nothing to remove is not a failure";
}

TEST(XdgAutostartService, EntriesSwitchedOffByTheDesktopCountAsDisabled)
{
    const struct {
        const char *text;
        bool enabled;
    } cases[] = {
        { "[Desktop Entry]\nExec=vantle\n", true },
        { "[Desktop Entry]\nExec=vantle\nHidden = True \n", false },
        { "[Desktop Entry]\nExec=vantle\nX-GNOME-Autostart-enabled=false\n", false },
        { "[Desktop Entry]\nExec=vantle\n[Desktop Action pick]\nHidden=true\n", true },
        { "\xff\xfe\x00 garbage", true }, // present and not switched off
    };
    for (const auto &c : cases) {
        Autostart a;
        ASSERT_TRUE(a.service.registerItem()); // then replaced by the desktop's version
        QFile f(a.entryPath);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(c.text));
        f.close();
        EXPECT_EQ(a.service.isEnabled(), c.enabled) << c.text;
    }
}

// The settings window's toggle is SettingsView's test; here, what every launch does.
TEST(LaunchAtLogin, LaunchMakesTheLoginItemFollowThePreference)
{
    const struct {
        std::optional<bool> wanted; // none: a fresh installation
        bool itemBefore, accepts, itemAfter, wantedAfter;
    } cases[] = {
        { std::nullopt, false, true, true, true }, { false, true, true, false, false },
        { true, false, false, false, false }, // refused: the preference follows, silently
    };
    for (const auto &c : cases) {
        TempSettings settings;
        SettingsViewModel::registerDefaults(*settings.store);
        if (c.wanted)
            settings.store->setBool(PreferenceKeys::launchAtLogin, *c.wanted);
        FakeLoginItemService item;
        item.enabled = c.itemBefore;
        item.accepts = c.accepts;
        LaunchAtLogin::syncLaunchAtLogin(*settings.store, item);
        EXPECT_EQ(item.enabled, c.itemAfter);
        EXPECT_EQ(settings.store->boolForKey(PreferenceKeys::launchAtLogin), c.wantedAfter);
    }
}
