// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsViewModel.h"
#include "services/XdgAutostartService.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

struct AutostartFixture {
    TempSettings settings;
    QString entryPath = settings.dir.filePath(QStringLiteral("config/autostart/vantle.desktop"));
    XdgAutostartService service { entryPath, QStringLiteral("/opt/My Apps/vantle \"$HOME\" 100%.AppImage") };

    AutostartFixture() { SettingsViewModel::registerDefaults(*settings.store); }
    bool wanted() const { return settings.store->boolForKey(PreferenceKeys::launchAtLogin); }
    // Makes the autostart folder impossible to create, even for root: a file stands in its place.
    void blockAutostartFolder()
    {
        QDir().mkpath(settings.dir.filePath(QStringLiteral("config")));
        QFile blocker(settings.dir.filePath(QStringLiteral("config/autostart")));
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    }
    void writeEntry(const QByteArray &text)
    {
        QDir().mkpath(settings.dir.filePath(QStringLiteral("config/autostart")));
        QFile f(entryPath);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(text);
    }
};

} // namespace

TEST(XdgAutostartService, EntryStartsTheProgramWithExecQuoting)
{
    AutostartFixture f;
    EXPECT_FALSE(f.service.isEnabled());
    ASSERT_TRUE(f.service.registerItem());
    EXPECT_TRUE(f.service.isEnabled());
    QFile entry(f.entryPath);
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    const QByteArray text = entry.readAll();
    // Exec quoting escapes '"' and '$' with a backslash, the string escape doubles it again,
    // and a literal percent sign is doubled.
    EXPECT_TRUE(text.contains(R"(Exec="/opt/My Apps/vantle \\"\\$HOME\\" 100%%.AppImage")"))
        << text.constData();
    EXPECT_TRUE(f.service.unregisterItem());
    EXPECT_FALSE(QFile::exists(f.entryPath));
    EXPECT_TRUE(f.service.unregisterItem()) << "nothing to remove is not a failure";
}

TEST(XdgAutostartService, EntriesSwitchedOffByTheDesktopCountAsDisabled)
{
    const struct {
        const char *text;
        bool enabled;
    } cases[] = {
        { "[Desktop Entry]\nExec=vantle\n", true }, { "[Desktop Entry]\nExec=vantle\nHidden=true\n", false },
        { "[Desktop Entry]\nExec=vantle\nHidden = True \n", false },
        { "[Desktop Entry]\nExec=vantle\nX-GNOME-Autostart-enabled=false\n", false },
        { "[Desktop Entry]\nExec=vantle\n[Desktop Action pick]\nHidden=true\n", true },
        { "\xff\xfe\x00 garbage", true }, // present and not switched off
    };
    for (const auto &c : cases) {
        AutostartFixture f;
        f.writeEntry(c.text);
        EXPECT_EQ(f.service.isEnabled(), c.enabled) << c.text;
    }
}

TEST(LaunchAtLogin, LaunchMakesTheLoginItemFollowThePreference)
{
    AutostartFixture fresh; // a fresh installation wants launch at login
    LaunchAtLogin::syncLaunchAtLogin(*fresh.settings.store, fresh.service);
    EXPECT_TRUE(fresh.service.isEnabled());
    EXPECT_TRUE(fresh.wanted());

    AutostartFixture off;
    off.settings.store->setBool(PreferenceKeys::launchAtLogin, false);
    off.service.registerItem();
    LaunchAtLogin::syncLaunchAtLogin(*off.settings.store, off.service);
    EXPECT_FALSE(off.service.isEnabled());

    // Refused: the preference is rewritten to the real state, silently.
    AutostartFixture refused;
    refused.blockAutostartFolder();
    LaunchAtLogin::syncLaunchAtLogin(*refused.settings.store, refused.service);
    EXPECT_FALSE(refused.wanted());
}

TEST(LaunchAtLogin, SettingsWindowShowsTheRealStateAndTogglesBackOnFailure)
{
    AutostartFixture f;
    // The user removed the entry behind our back: the toggle reads off when the window appears.
    LaunchAtLogin::refreshLaunchAtLogin(*f.settings.store, f.service);
    EXPECT_FALSE(f.wanted());
    LaunchAtLogin::applyLaunchAtLogin(*f.settings.store, f.service, true);
    EXPECT_TRUE(f.service.isEnabled());

    AutostartFixture blocked;
    blocked.blockAutostartFolder();
    blocked.settings.store->setBool(PreferenceKeys::launchAtLogin, true); // the toggle moved on
    LaunchAtLogin::applyLaunchAtLogin(*blocked.settings.store, blocked.service, true);
    EXPECT_FALSE(blocked.wanted()) << "the toggle moves back";
}
