// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/SettingsStore.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsViewModel.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace PreferenceKeys;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

ino_t inode(const QString &path)
{
    struct stat st = {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_ino : 0;
}

} // namespace

TEST(SettingsStore, DefaultsAreAnsweredButNeverWritten)
{
    TempSettings t;
    SettingsViewModel::registerDefaults(*t.store);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 50);
    // A stored format that is not text reads as hex (which texts name a format is ColorFormatTest's).
    t.store->setInteger(colorFormat, 3);
    EXPECT_EQ(SettingsViewModel::currentFormat(*t.store), ColorFormat::hex);
    EXPECT_TRUE(t.store->boolForKey(launchAtLogin));
    EXPECT_EQ(t.store->stringForKey(pickKeyChar), std::nullopt); // no default: missing
    t.store->setInteger(historyLimit, 20);
    t.store->removeObject(historyLimit);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 50);
    EXPECT_FALSE(t.reopen()->hasOwnValue(launchAtLogin));
}

TEST(SettingsStore, ValuesSurviveTheNextLaunchWithTheirTypes)
{
    TempSettings t;
    // A person's file as earlier versions wrote it, the history inside, as text: a key spelt
    // otherwise in code would lose what they chose.
    t.store.reset();
    put(t.filePath(),
        "[General]\ncolorHistory=\"@ByteArray([{\\\"a\\\":1}])\"\ncolorFormat=CSS rgba\nlaunchAtLogin=false\n"
        "showColorDot=true\nhistoryLimit=20\npickKeyCode=2\npickModifiers=1179648\npickKeyChar=D\n"
        "popoverKeyCode=16\npopoverModifiers=262144\npopoverKeyChar=Y\nonboardingShown=true\n"
        "SUAutomaticallyUpdate=false\nSUSkippedVersion=1.2.0\n");
    t.store = std::make_unique<SettingsStore>(t.filePath());
    SettingsViewModel::registerDefaults(*t.store); // so that a value not found reads otherwise
    const SettingsStore &s = *t.store;
    EXPECT_EQ(s.dataForKey(colorHistory), QByteArray(R"([{"a":1}])"));
    EXPECT_EQ(SettingsViewModel::currentFormat(s), ColorFormat::css);
    EXPECT_EQ(
        std::tuple(s.boolForKey(launchAtLogin), s.boolForKey(showColorDot), s.integerForKey(historyLimit)),
        std::tuple(false, true, 20));
    EXPECT_EQ(Preferences::pickShortcut.read(s), (StoredShortcut { 2, 1179648, QStringLiteral("D") }));
    EXPECT_EQ(Preferences::popoverShortcut.read(s), (StoredShortcut { 16, 262144, QStringLiteral("Y") }));
    EXPECT_EQ(std::tuple(s.boolForKey(onboardingShown), s.boolForKey(automaticallyUpdate)),
        std::tuple(true, false));
    EXPECT_EQ(s.stringForKey(skippedUpdateVersion), QStringLiteral("1.2.0"));
    const QByteArray blob = "[{\"name\":\"a/b \\\"q\\\" = ; # [x]\"}]\n\xc3\xa9\x00\xff";
    t.store->setData(colorHistory, blob);
    t.store->setInteger(pickKeyCode, -1);
    t.store->setString(pickKeyChar, QStringLiteral("C"));
    t.store->setBool(showColorDot, true);

    const auto next = t.reopen();
    EXPECT_EQ(next->dataForKey(colorHistory), blob);
    EXPECT_EQ(next->integerForKey(pickKeyCode), -1);
    EXPECT_EQ(next->stringForKey(pickKeyChar), QStringLiteral("C"));
    EXPECT_TRUE(next->boolForKey(showColorDot));
    EXPECT_EQ(next->dataForKey(pickKeyChar), std::nullopt); // a text value is not data
    // Data leaves the settings file for its own at the first write.
    EXPECT_EQ(contents(t.dir.filePath(QStringLiteral("colorHistory.json"))), blob);
    EXPECT_FALSE(contents(t.filePath()).contains("colorHistory"));
    t.store->removeObject(colorHistory);
    EXPECT_FALSE(QFile::exists(t.dir.filePath(QStringLiteral("colorHistory.json"))));
    EXPECT_FALSE(t.reopen()->hasOwnValue(colorHistory));
}

TEST(SettingsStore, AValueAlreadyOnDiskIsNotWrittenAgainButStillSignalled)
{
    // Vantle writes some values back at every launch; the file is rewritten (a new inode, by its
    // temporary file and rename) only when what it holds changes.
    TempSettings t;
    const QString path = t.dir.filePath(QStringLiteral("launched.conf"));
    put(path, "[General]\npickKeyCode=8\nshowColorDot=true\npickKeyChar=C\n");
    const ino_t written = inode(path);
    SettingsStore store(path); // values read back from the file as text
    QSignalSpy spy(&store, &SettingsStore::changed);
    EXPECT_TRUE(store.setInteger(pickKeyCode, 8));
    EXPECT_TRUE(store.setBool(showColorDot, true));
    EXPECT_TRUE(store.setString(pickKeyChar, QStringLiteral("C")));
    EXPECT_EQ(spy.count(), 3);
    EXPECT_EQ(inode(path), written);
}

TEST(SettingsStore, AnEmptyLockLeftByAKilledWriterDoesNotHoldTheNextSave)
{
    // A writer killed between creating "<file>.lock" and writing its id leaves it empty, and
    // QSettings would wait 30 s for it to go stale: the program with it, at its next save.
    TempSettings t;
    put(t.filePath() + QStringLiteral(".lock"), {});
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(t.store->setInteger(historyLimit, 20));
    EXPECT_LT(clock.elapsed(), 10000);
    EXPECT_EQ(t.reopen()->integerForKey(historyLimit), 20);
}

// A corrupt settings file is HostileSettingsTest's; here, a data file that is a folder, or a
// FIFO that would block a plain read for ever.
TEST(SettingsStore, UnreadableDataFilesGoAsideAndReadAsMissing)
{
    TempSettings t;
    const QString dataPath = t.store->dataFilePath(colorHistory);
    ASSERT_TRUE(QDir().mkpath(dataPath));
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    ASSERT_EQ(::mkfifo(QFile::encodeName(dataPath).constData(), 0600), 0);
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    const QDir folder(t.dir.path(), QStringLiteral("colorHistory.json.unreadable-*"));
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::System).size(), 2);
    EXPECT_TRUE(t.store->setData(colorHistory, "[]"));
    EXPECT_EQ(t.reopen()->dataForKey(colorHistory), QByteArray("[]"));
}
