// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/DiskImageCleanup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

// Answers losetup from `listing` and udisksctl with noise; records every call as "program arg arg…".
struct FakeCommandRunner : CommandRunner {
    std::optional<QByteArray> run(const QString &program, const QStringList &arguments, bool) override
    {
        calls << (QStringList { program } + arguments).join(u' ');
        return program == u"losetup" ? listing : QByteArray("noise");
    }
    QByteArray listing;
    QStringList calls;
};

// A private machine: a home with its own Trash, a mount table, folders as mounted volumes.
struct Machine {
    Machine()
    {
        qputenv("HOME", home().toLocal8Bit());
        qputenv("XDG_DATA_HOME", (home() + QStringLiteral("/.local/share")).toLocal8Bit());
    }
    QString home() const { return root.filePath(QStringLiteral("home")); }
    void writeFile(const QString &path, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    void volume(const QString &name, const QString &device, bool holdsProgram = true)
    {
        const QString mountPoint = root.filePath(QStringLiteral("media/") + name);
        QDir().mkpath(mountPoint);
        if (holdsProgram)
            writeFile(mountPoint + QStringLiteral("/Vantle.AppImage"), "program");
        mountTable += "90 29 7:0 / " + mountPoint.toUtf8().replace(" ", "\\040") + " rw shared:1 - ext4 "
            + device.toUtf8() + " rw\n";
        writeFile(root.filePath(QStringLiteral("mountinfo")), mountTable);
    }
    QString image(const QString &name) const
    {
        const QString path = root.filePath(QStringLiteral("Downloads/") + name);
        writeFile(path, "image");
        return path;
    }
    DiskImageCleanup cleanup(const QString &bundle = QStringLiteral("~/Applications/Vantle.AppImage")) const
    {
        return DiskImageCleanup(
            { QString(bundle).replace(u'~', home()), home(), root.filePath(QStringLiteral("mountinfo")), {} },
            runner);
    }

    QTemporaryDir root;
    QByteArray mountTable;
    std::shared_ptr<FakeCommandRunner> runner = std::make_shared<FakeCommandRunner>();
};

} // namespace

// Reading the listing and the mount table is the fuzz targets' (loop_device_listing, mount_table).
TEST(DiskImageCleanup, OnlyALaunchFromAnApplicationsFolderStartsTheCleanUp)
{
    const struct {
        const char *bundle;
        bool starts;
    } cases[] = {
        { "~/Applications/Vantle.AppImage", true },
        { "~/Downloads/Vantle.AppImage", false },
        { "/media/u/Vantle/Applications/Vantle.AppImage", false },
    };
    for (const auto &c : cases) {
        Machine machine;
        EXPECT_EQ(machine.cleanup(QString::fromLatin1(c.bundle)).start(), c.starts) << c.bundle;
    }
}

TEST(DiskImageCleanup, DetachesAndTrashesTheFirstImageHoldingTheProgram)
{
    Machine machine;
    const QString first = machine.image(QStringLiteral("Vantle 1.0.img"));
    const QString second = machine.image(QStringLiteral("Vantle-copy.img"));
    const QString unrelated = machine.image(QStringLiteral("photos.img"));
    machine.volume(QStringLiteral("photos"), QStringLiteral("/dev/loop3"), false);
    machine.volume(QStringLiteral("Vantle 1.0"), QStringLiteral("/dev/loop4p1"));
    machine.volume(QStringLiteral("Vantle copy"), QStringLiteral("/dev/loop5"));
    machine.runner->listing = QStringLiteral(R"({"loopdevices": [{"name": "/dev/loop3", "back-file": "%1"},
        {"name": "/dev/loop4", "back-file": "%2"}, {"name": "/dev/loop5", "back-file": "%3"}]})")
                                  .arg(unrelated, first, second)
                                  .toUtf8();

    ASSERT_TRUE(machine.cleanup().start()); // in the background
    const QString trashed = machine.home() + QStringLiteral("/.local/share/Trash/files/Vantle 1.0.img");
    for (int i = 0; i < 500 && !QFileInfo::exists(trashed); ++i)
        QThread::msleep(20);

    EXPECT_TRUE(QFileInfo::exists(trashed));
    EXPECT_FALSE(QFileInfo::exists(first));
    EXPECT_TRUE(QFileInfo::exists(second));
    EXPECT_TRUE(QFileInfo::exists(unrelated));
    EXPECT_EQ(machine.runner->calls,
        QStringList({ QStringLiteral("losetup --list --json"),
            QStringLiteral("udisksctl unmount -b /dev/loop4p1 --no-user-interaction"),
            QStringLiteral("udisksctl loop-delete -b /dev/loop4 --no-user-interaction") }));
    // Qt's trash falls back to the working folder when the data folder is missing.
    EXPECT_FALSE(QFileInfo::exists(QDir::current().filePath(QStringLiteral("Trash"))));
}
