// SPDX-License-Identifier: GPL-3.0-or-later
// A full or read-only disk under the settings: a pick still copies and stays in the history in
// memory, the file on disk stays as it was, the next save that can succeed writes every colour,
// and an export says it failed and leaves no partial file.
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/XdgAutostartService.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A tmpfs of a few kilobytes of our own, unmounted at the end.
class TinyDisk : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "mounting a tiny tmpfs needs root; run as root to test a full disk";
        ASSERT_TRUE(outer.isValid());
        mountPoint = outer.filePath(QStringLiteral("disk"));
        ASSERT_TRUE(QDir().mkpath(mountPoint));
        if (!run(QStringLiteral("mount"),
                { QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                    QStringLiteral("size=64k,mode=700"), QStringLiteral("vantle-test"), mountPoint }))
            GTEST_SKIP() << "cannot mount a tmpfs here (no CAP_SYS_ADMIN in this container?)";
        mounted = true;
        settingsPath = mountPoint + QStringLiteral("/Vantle/Vantle.conf");
    }
    void TearDown() override
    {
        if (mounted)
            run(QStringLiteral("umount"), { QStringLiteral("-l"), mountPoint });
    }
    // Fills the disk to the last byte with a file that can be removed again.
    void fill()
    {
        QFile filler(mountPoint + QStringLiteral("/filler"));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly));
        const QByteArray block(512, 'x');
        while (filler.write(block) == block.size() && filler.flush()) { }
        const QByteArray byte(1, 'x');
        while (filler.write(byte) == 1 && filler.flush()) { }
    }
    void freeSpace() { ASSERT_TRUE(QFile::remove(mountPoint + QStringLiteral("/filler"))); }
    bool remount(const char *mode)
    {
        return run(QStringLiteral("mount"),
            { QStringLiteral("-o"), QStringLiteral("remount,%1").arg(QLatin1String(mode)), mountPoint });
    }
    QString historyPath() const
    {
        return QFileInfo(settingsPath).dir().filePath(QStringLiteral("colorHistory.json"));
    }
    QList<PickedColor> storedOnDisk() const
    {
        return decodeColorHistory(readAll(historyPath())).value_or(QList<PickedColor>());
    }
    void pick(ColorListViewModel &model, double red)
    {
        model.pickColor();
        sampler.finish(red, 0.5, 0.25);
    }

    QTemporaryDir outer;
    QString mountPoint;
    QString settingsPath;
    bool mounted = false;
    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs dialogs;
};

TEST_F(TinyDisk, AFullDiskKeepsPicksInMemoryAndTheOldFileUntilASaveCanSucceed)
{
    SettingsStore store(settingsPath);
    ColorListViewModel model(store, sampler, clipboard, confirmation, dialogs);
    pick(model, 0.1);
    pick(model, 0.2);
    ASSERT_EQ(storedOnDisk().size(), 2);
    const QByteArray before = readAll(historyPath());

    fill();
    ASSERT_EQ(QStorageInfo(mountPoint).bytesAvailable(), 0);
    pick(model, 0.3);
    EXPECT_EQ(clipboard.texts.size(), 3) << "the pick still copies";
    EXPECT_EQ(model.colors().size(), 3) << "and stays in the history";
    EXPECT_EQ(readAll(historyPath()), before) << "the old file stays intact";

    // Export to the full disk: refused, nothing left behind.
    const QString exportPath = mountPoint + QStringLiteral("/palette.txt");
    dialogs.chosenPath = exportPath;
    model.exportColors(false, false);
    EXPECT_EQ(dialogs.failures.size(), 1);
    EXPECT_FALSE(QFile::exists(exportPath))
        << QFileInfo(exportPath).size() << " bytes, " << QStorageInfo(mountPoint).bytesAvailable() << " free";
    EXPECT_EQ(
        QDir(mountPoint).entryList(QDir::Files | QDir::Hidden), QStringList { QStringLiteral("filler") });

    // The autostart entry on the full disk: refused, not replaced by an empty entry.
    XdgAutostartService autostart(
        mountPoint + QStringLiteral("/vantle.desktop"), QStringLiteral("/usr/bin/vantle"));
    EXPECT_FALSE(autostart.registerItem());
    EXPECT_FALSE(QFile::exists(mountPoint + QStringLiteral("/vantle.desktop")));

    freeSpace();
    pick(model, 0.4);
    EXPECT_EQ(storedOnDisk().size(), 4) << "the next save writes every colour, the one kept in memory too";
}

TEST_F(TinyDisk, AReadOnlyConfigFolderKeepsPicksInMemoryUntilItIsWritableAgain)
{
    SettingsStore store(settingsPath);
    ColorListViewModel model(store, sampler, clipboard, confirmation, dialogs);
    pick(model, 0.1);
    const QByteArray before = readAll(historyPath());

    ASSERT_TRUE(remount("ro"));
    pick(model, 0.2);
    pick(model, 0.3);
    EXPECT_EQ(clipboard.texts.size(), 3);
    EXPECT_EQ(model.colors().size(), 3);
    EXPECT_EQ(readAll(historyPath()), before);

    ASSERT_TRUE(remount("rw"));
    pick(model, 0.4);
    EXPECT_EQ(storedOnDisk().size(), 4);
}

} // namespace
