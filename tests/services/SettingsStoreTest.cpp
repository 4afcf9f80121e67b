// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/SettingsStore.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsViewModel.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace PreferenceKeys;

TEST(SettingsStore, FreshStoreAnswersRegisteredDefaultsWithoutWritingThem)
{
    TempSettings t;
    SettingsViewModel::registerDefaults(*t.store);
    EXPECT_EQ(SettingsViewModel::currentFormat(*t.store), ColorFormat::hex);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 50);
    EXPECT_EQ(t.store->integerForKey(pickKeyCode), -1);
    EXPECT_EQ(t.store->integerForKey(popoverKeyCode), -1);
    EXPECT_TRUE(t.store->boolForKey(launchAtLogin));
    EXPECT_FALSE(t.store->boolForKey(showColorDot));
    EXPECT_FALSE(t.store->boolForKey(onboardingShown));
    // Keys without a default: the store's meaning of "missing".
    EXPECT_EQ(t.store->integerForKey(pickModifiers), 0);
    EXPECT_EQ(t.store->stringForKey(pickKeyChar), std::nullopt);
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    EXPECT_FALSE(t.store->hasOwnValue(historyLimit));
    EXPECT_FALSE(t.reopen()->hasOwnValue(colorFormat)) << "defaults are never written";

    // An own value hides the default; removing it brings the default back.
    t.store->setInteger(historyLimit, 20);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 20);
    t.store->removeObject(historyLimit);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 50);
}

TEST(SettingsStore, ValuesSurviveTheNextLaunchWithTheirTypes)
{
    TempSettings t;
    const QByteArray blob = R"([{"name":"a/b \"q\" = ; # [x]"}])"
                            "\n\xc3\xa9\x00\xff";
    t.store->setData(colorHistory, blob);
    t.store->setInteger(pickModifiers, 655360);
    t.store->setInteger(pickKeyCode, -1);
    t.store->setString(pickKeyChar, QStringLiteral("C"));
    t.store->setString(colorFormat, QStringLiteral("Hex (lowercase)"));
    t.store->setBool(showColorDot, true);
    t.store->setBool(launchAtLogin, false);

    const auto next = t.reopen();
    EXPECT_EQ(next->dataForKey(colorHistory), blob);
    EXPECT_EQ(next->integerForKey(pickModifiers), 655360);
    EXPECT_EQ(next->integerForKey(pickKeyCode), -1);
    EXPECT_EQ(next->stringForKey(pickKeyChar), QStringLiteral("C"));
    EXPECT_EQ(SettingsViewModel::currentFormat(*next), ColorFormat::hexLower);
    EXPECT_TRUE(next->boolForKey(showColorDot));
    EXPECT_FALSE(next->boolForKey(launchAtLogin));
    // A text value is not data.
    EXPECT_EQ(next->dataForKey(pickKeyChar), std::nullopt);
}

TEST(SettingsStore, PreferredFormatFallsBackToHex)
{
    TempSettings t;
    SettingsViewModel::registerDefaults(*t.store);
    const struct {
        const char *stored;
        ColorFormat expected;
    } cases[] = { { "HSL", ColorFormat::hsl }, { "RGB (decimal)", ColorFormat::rgbDecimal },
        { "hex", ColorFormat::hex }, { "hsl", ColorFormat::hex }, { "", ColorFormat::hex },
        { "Nonsense", ColorFormat::hex } };
    for (const auto &c : cases) {
        t.store->setString(colorFormat, QString::fromUtf8(c.stored));
        EXPECT_EQ(SettingsViewModel::currentFormat(*t.store), c.expected) << c.stored;
    }
    t.store->setInteger(colorFormat, 3); // a value of the wrong type
    EXPECT_EQ(SettingsViewModel::currentFormat(*t.store), ColorFormat::hex);
}

TEST(SettingsStore, ChangeSignalAfterEveryWrite)
{
    TempSettings t;
    QSignalSpy spy(t.store.get(), &SettingsStore::changed);
    t.store->setBool(showColorDot, true);
    t.store->setBool(showColorDot, true);
    t.store->removeObject(showColorDot);
    ASSERT_EQ(spy.count(), 3);
    EXPECT_EQ(spy.at(0).at(0).toString(), showColorDot);
}

TEST(SettingsStore, ValueAlreadyOnDiskIsNotWrittenAgain)
{
    // Vantle writes some values back at every launch; the file is rewritten (a new inode, by
    // its temporary file and rename) only when what it holds changes.
    TempSettings t;
    const QString path = t.dir.filePath(QStringLiteral("launched.conf"));
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[General]\npickKeyCode=8\nshowColorDot=true\npickKeyChar=C\n");
    }
    const auto inode = [&path] {
        struct stat st = {};
        return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_ino : 0;
    };
    const auto written = inode();
    SettingsStore store(path); // values read back from the file as text
    QSignalSpy spy(&store, &SettingsStore::changed);
    EXPECT_TRUE(store.setInteger(pickKeyCode, 8));
    EXPECT_TRUE(store.setBool(showColorDot, true));
    EXPECT_TRUE(store.setString(pickKeyChar, QStringLiteral("C")));
    EXPECT_EQ(spy.count(), 3) << "observers hear of every write";
    EXPECT_EQ(inode(), written);

    // The same for data, which lives in a file of its own.
    ASSERT_TRUE(store.setData(colorHistory, "[1]"));
    const auto dataInode = [&store] {
        struct stat st = {};
        return ::stat(QFile::encodeName(store.dataFilePath(colorHistory)).constData(), &st) == 0 ? st.st_ino
                                                                                                 : 0;
    };
    const auto dataWritten = dataInode();
    EXPECT_TRUE(store.setData(colorHistory, "[1]"));
    EXPECT_EQ(dataInode(), dataWritten);
    EXPECT_TRUE(store.setData(colorHistory, "[2]"));
    EXPECT_NE(dataInode(), dataWritten);

    EXPECT_TRUE(store.setBool(showColorDot, false));
    EXPECT_NE(inode(), written);
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.readAll().contains("showColorDot=false"));
}

TEST(SettingsStore, CorruptFileIsKeptAsideAndReadsAsMissing)
{
    TempSettings t;
    t.store.reset();
    const QByteArray corrupt("\xff\xfe garbage [General\nhistoryLimit=abc\nshowColorDot=yes\npickKeyCode=12\n"
                             "colorHistory=not data\n\x00\x01\x02=\n[[[\n",
        80);
    {
        QFile f(t.filePath());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(corrupt);
    }
    t.store = std::make_unique<SettingsStore>(t.filePath());
    SettingsViewModel::registerDefaults(*t.store);
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    EXPECT_EQ(t.store->integerForKey(historyLimit), 0) << "unreadable number";
    EXPECT_EQ(SettingsViewModel::currentFormat(*t.store), ColorFormat::hex);
    // The original bytes are kept aside before anything rewrites the file.
    const QStringList aside = QDir(t.dir.path()).entryList({ QStringLiteral("Vantle.conf.unreadable-*") });
    ASSERT_EQ(aside.size(), 1);
    QFile kept(t.dir.filePath(aside.first()));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), corrupt);
    // Still writable afterwards.
    EXPECT_TRUE(t.store->setInteger(historyLimit, 20));
    EXPECT_EQ(t.reopen()->integerForKey(historyLimit), 20);
}

TEST(SettingsStore, DataLeavesTheSettingsFileForItsOwnAtTheFirstWrite)
{
    TempSettings t;
    t.store.reset();
    {
        QFile f(t.filePath()); // as earlier versions wrote the history
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[General]\ncolorHistory=\"@ByteArray([{\\\"a\\\":1}])\"\nshowColorDot=true\n");
    }
    t.store = std::make_unique<SettingsStore>(t.filePath());
    EXPECT_EQ(t.store->dataForKey(colorHistory), QByteArray(R"([{"a":1}])"));
    const QString dataPath = t.dir.filePath(QStringLiteral("colorHistory.json"));
    EXPECT_EQ(t.store->dataFilePath(colorHistory), dataPath);

    EXPECT_TRUE(t.store->setData(colorHistory, "[]"));
    QFile data(dataPath);
    ASSERT_TRUE(data.open(QIODevice::ReadOnly));
    EXPECT_EQ(data.readAll(), "[]");
    QFile settings(t.filePath());
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    EXPECT_EQ(settings.readAll(), "[General]\nshowColorDot=true\n");
    EXPECT_EQ(t.reopen()->dataForKey(colorHistory), QByteArray("[]"));

    t.store->removeObject(colorHistory);
    EXPECT_FALSE(QFile::exists(dataPath));
    EXPECT_FALSE(t.reopen()->hasOwnValue(colorHistory));
}

TEST(SettingsStore, UnreadableDataFileGoesAsideAndReadsAsMissing)
{
    TempSettings t;
    const QString dataPath = t.store->dataFilePath(colorHistory);
    const auto aside = [&t] {
        return QDir(t.dir.path())
            .entryList({ QStringLiteral("colorHistory.json.unreadable-*") }, QDir::AllEntries | QDir::System);
    };
    // A folder, and a FIFO that would block a plain read for ever.
    ASSERT_TRUE(QDir().mkpath(dataPath));
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    EXPECT_EQ(aside().size(), 1);
    ASSERT_EQ(::mkfifo(QFile::encodeName(dataPath).constData(), 0600), 0);
    EXPECT_EQ(t.store->dataForKey(colorHistory), std::nullopt);
    EXPECT_EQ(aside().size(), 2);
    EXPECT_TRUE(t.store->setData(colorHistory, "[]"));
    EXPECT_EQ(t.reopen()->dataForKey(colorHistory), QByteArray("[]"));
}

TEST(SettingsStore, UnwritableFolderKeepsValuesInMemoryAndTheOldFile)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root ignores folder permissions";
    TempSettings t;
    t.store->setInteger(historyLimit, 20);
    QFile::setPermissions(t.dir.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    EXPECT_FALSE(t.store->setInteger(historyLimit, 100));
    EXPECT_EQ(t.store->integerForKey(historyLimit), 100);
    EXPECT_EQ(t.reopen()->integerForKey(historyLimit), 20);
    QFile::setPermissions(
        t.dir.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_TRUE(t.store->setBool(showColorDot, true));
    EXPECT_EQ(t.reopen()->integerForKey(historyLimit), 100)
        << "the next save that can succeed writes everything";
}
