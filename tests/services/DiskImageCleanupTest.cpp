// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/DiskImageCleanup.h"
#include "services/ProcessCommandRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

// A private machine: a bin folder with stand-in losetup/udisksctl, a home folder with its own
// Trash, a mount table file, and folders standing in for mounted volumes.
struct Machine {
    Machine()
    {
        qputenv("HOME", home().toLocal8Bit());
        qputenv("XDG_DATA_HOME", (home() + QStringLiteral("/.local/share")).toLocal8Bit());
        qputenv("PATH", bin().toLocal8Bit());
        QDir().mkpath(bin());
        QDir().mkpath(home() + QStringLiteral("/Applications"));
    }
    QString bin() const { return root.filePath(QStringLiteral("bin")); }
    QString home() const { return root.filePath(QStringLiteral("home")); }
    QString log() const { return root.filePath(QStringLiteral("udisks.log")); }
    QString mountTable() const { return root.filePath(QStringLiteral("mountinfo")); }
    QString trashed(const QString &name) const
    {
        return home() + QStringLiteral("/.local/share/Trash/files/") + name;
    }

    void writeFile(const QString &path, const QByteArray &content, bool executable = false) const
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        if (executable)
            file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
    }
    void standInLosetup(const QByteArray &json) const
    {
        writeFile(root.filePath(QStringLiteral("losetup.json")), json);
        writeFile(bin() + QStringLiteral("/losetup"),
            "#!/bin/sh\nexec /bin/cat '" + root.filePath(QStringLiteral("losetup.json")).toUtf8() + "'\n",
            true);
    }
    // Logs each call's arguments, one per line, and answers with `exitCode`.
    void standInUdisksctl(int exitCode) const
    {
        writeFile(bin() + QStringLiteral("/udisksctl"),
            "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\" >> '" + log().toUtf8()
                + "'; done\necho noise; echo noise >&2\nexit " + QByteArray::number(exitCode) + "\n",
            true);
    }
    // A mounted volume: a folder holding the program, listed in the mount table for `device`.
    QString volume(const QString &name, const QString &device, bool holdsProgram = true)
    {
        const QString mountPoint = root.filePath(QStringLiteral("media/") + name);
        QDir().mkpath(mountPoint);
        if (holdsProgram)
            writeFile(mountPoint + QStringLiteral("/Vantle.AppImage"), "program");
        QByteArray escaped = mountPoint.toUtf8();
        escaped.replace("\\", "\\134").replace(" ", "\\040").replace("\n", "\\012").replace("\t", "\\011");
        mountTableText
            += "90 29 7:0 / " + escaped + " rw,nosuid shared:1 - ext4 " + device.toUtf8() + " rw\n";
        writeFile(mountTable(), mountTableText);
        return mountPoint;
    }
    QString image(const QString &name) const
    {
        const QString path = root.filePath(QStringLiteral("Downloads/") + name);
        writeFile(path, "image");
        return path;
    }
    DiskImageCleanup cleanup(const QString &bundlePath = QString()) const
    {
        DiskImageCleanup::Environment environment;
        environment.bundlePath
            = bundlePath.isEmpty() ? home() + QStringLiteral("/Applications/Vantle.AppImage") : bundlePath;
        environment.homePath = home();
        environment.mountTablePath = mountTable();
        environment.delay = std::chrono::milliseconds(0);
        return DiskImageCleanup(environment, std::make_shared<ProcessCommandRunner>());
    }
    QStringList udisksCalls() const
    {
        QFile file(log());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QTemporaryDir root;
    QByteArray mountTableText;
};

QByteArray losetupJson(const QList<std::pair<QString, QString>> &devices)
{
    QByteArray json = "{\n   \"loopdevices\": [\n";
    for (qsizetype i = 0; i < devices.size(); ++i) {
        QByteArray file = devices[i].second.toUtf8();
        file.replace("\\", "\\\\").replace("\"", "\\\"").replace("\n", "\\u000a");
        json += "      {\"name\": \"" + devices[i].first.toUtf8()
            + "\", \"sizelimit\": 0, \"offset\": 0, \"autoclear\": false, \"ro\": true, \"back-file\": \""
            + file + "\", \"dio\": false, \"log-sec\": 512}" + (i + 1 < devices.size() ? ",\n" : "\n");
    }
    return json + "   ]\n}\n";
}

} // namespace

TEST(DiskImageCleanup, ListingJoinsLoopDevicesWithTheirMountedVolumes)
{
    const QByteArray mountInfo = "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                 "90 22 7:1 / /media/u/Vantle\\0401.0 ro shared:5 - iso9660 /dev/loop1 ro\n"
                                 "91 22 259:0 / /media/u/Part\\134One ro - vfat /dev/loop2p1 rw\n"
                                 "92 22 259:1 / /media/u/PartTwo ro - vfat /dev/loop2p2 rw\n"
                                 "93 22 7:12 / /media/u/Other ro - ext4 /dev/loop12 rw\n"
                                 "94 22 7:12 / /media/u/NotUtf8\\351 ro - ext4 /dev/loop12 rw\n"
                                 "garbage line\n";
    const auto loops = DiskImageCleanup::parseLoopDevices(
        losetupJson({ { QStringLiteral("/dev/loop1"), QStringLiteral("/home/u/My \"Apps\" $(rm -rf ~).img") },
            { QStringLiteral("/dev/loop2"), QStringLiteral("/home/u/parts.img") },
            { QStringLiteral("/dev/loop3"), QStringLiteral("/home/u/gone.img (deleted)") } }));
    ASSERT_EQ(loops.size(), 2);
    EXPECT_EQ(loops[0].backingFile, QStringLiteral("/home/u/My \"Apps\" $(rm -rf ~).img"));

    const auto images = DiskImageCleanup::attachedImages(loops, DiskImageCleanup::parseMountTable(mountInfo));
    ASSERT_EQ(images.size(), 2);
    ASSERT_EQ(images[0].volumes.size(), 1);
    EXPECT_EQ(images[0].volumes[0].mountPoint, QStringLiteral("/media/u/Vantle 1.0"));
    // loop2's partitions, but never loop12's volume.
    ASSERT_EQ(images[1].volumes.size(), 2);
    EXPECT_EQ(images[1].volumes[0].device, QStringLiteral("/dev/loop2p1"));
    EXPECT_EQ(images[1].volumes[0].mountPoint, QStringLiteral("/media/u/Part\\One"));
    EXPECT_EQ(images[1].volumes[1].mountPoint, QStringLiteral("/media/u/PartTwo"));
}

TEST(DiskImageCleanup, UnreadableListingsGiveNothing)
{
    const QList<QByteArray> listings = { "", "garbage", "{\"loopdevices\": []}", "{\"loopdevices\": {}}",
        "[1, 2]", "{\"loopdevices\": [{\"name\": 7, \"back-file\": \"/x.img\"}]}",
        "{\"loopdevices\": [{\"name\": \"/dev/loop0\", \"back-file\": null}]}",
        "{\"loopdevices\": [{\"name\": \"/dev/loop0\", \"back-file\": \"/a\xff.img\"}]}" };
    for (const QByteArray &listing : listings)
        EXPECT_TRUE(DiskImageCleanup::parseLoopDevices(listing).isEmpty()) << listing.constData();
}

TEST(DiskImageCleanup, OnlyAnApplicationsFolderStartsTheCleanUp)
{
    Machine machine;
    const struct {
        QString bundle;
        bool expected;
    } cases[] = {
        { QStringLiteral("/Applications/Vantle.AppImage"), true },
        { machine.home() + QStringLiteral("/Applications/Vantle.AppImage"), true },
        { QStringLiteral("/usr/bin/vantle"), false },
        { machine.home() + QStringLiteral("/Downloads/Vantle.AppImage"), false },
        { QStringLiteral("/media/u/Vantle/Vantle.AppImage"), false },
    };
    for (const auto &c : cases)
        EXPECT_EQ(machine.cleanup(c.bundle).isInApplicationsFolder(), c.expected) << c.bundle.toStdString();
}

TEST(DiskImageCleanup, DetachesAndTrashesTheFirstImageHoldingTheProgram)
{
    Machine machine;
    // Names a shell would mangle: quotes, a command substitution, a newline.
    const QString first = machine.image(QStringLiteral("Vantle \"1.0\" $(touch pwned)\n.img"));
    const QString second = machine.image(QStringLiteral("Vantle-copy.img"));
    const QString unrelated = machine.image(QStringLiteral("photos.img"));
    machine.volume(QStringLiteral("photos"), QStringLiteral("/dev/loop3"), false);
    machine.volume(QStringLiteral("Vantle 1.0"), QStringLiteral("/dev/loop4p1"));
    machine.volume(QStringLiteral("Vantle copy"), QStringLiteral("/dev/loop5"));
    machine.standInLosetup(losetupJson({ { QStringLiteral("/dev/loop3"), unrelated },
        { QStringLiteral("/dev/loop4"), first }, { QStringLiteral("/dev/loop5"), second } }));
    machine.standInUdisksctl(0);

    ASSERT_TRUE(machine.cleanup().start());
    const QString trashed = machine.trashed(QFileInfo(first).fileName());
    for (int i = 0; i < 500 && !QFileInfo::exists(trashed); ++i)
        QThread::msleep(20);

    EXPECT_TRUE(QFileInfo::exists(trashed));
    EXPECT_FALSE(QFileInfo::exists(first));
    EXPECT_TRUE(QFileInfo::exists(second));
    EXPECT_TRUE(QFileInfo::exists(unrelated));
    EXPECT_EQ(machine.udisksCalls(),
        QStringList({ QStringLiteral("unmount"), QStringLiteral("-b"), QStringLiteral("/dev/loop4p1"),
            QStringLiteral("--no-user-interaction"), QStringLiteral("loop-delete"), QStringLiteral("-b"),
            QStringLiteral("/dev/loop4"), QStringLiteral("--no-user-interaction") }));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("pwned")));
}

TEST(DiskImageCleanup, AFailedDetachStillTrashesTheImage)
{
    Machine machine;
    const QString image = machine.image(QStringLiteral("Vantle.img"));
    machine.volume(QStringLiteral("Vantle"), QStringLiteral("/dev/loop0"));
    machine.standInLosetup(losetupJson({ { QStringLiteral("/dev/loop0"), image } }));
    machine.standInUdisksctl(1);

    machine.cleanup().cleanUp();

    EXPECT_EQ(machine.udisksCalls().size(), 8);
    EXPECT_TRUE(QFileInfo::exists(machine.trashed(QStringLiteral("Vantle.img"))));
    // Qt's trash falls back to the working folder when the data folder is missing.
    EXPECT_FALSE(QFileInfo::exists(QDir::current().filePath(QStringLiteral("Trash"))));
}

TEST(DiskImageCleanup, NothingHappensWithoutAMatchOrTools)
{
    const struct {
        const char *what;
        bool programOnVolume;
        bool udisksInstalled;
        bool listed;
    } cases[] = {
        { "volume without the program", false, true, true },
        { "no udisksctl", true, false, true },
        { "no images attached", true, true, false },
    };
    for (const auto &c : cases) {
        Machine machine;
        const QString image = machine.image(QStringLiteral("Vantle.img"));
        machine.volume(QStringLiteral("Vantle"), QStringLiteral("/dev/loop0"), c.programOnVolume);
        machine.standInLosetup(
            c.listed ? losetupJson({ { QStringLiteral("/dev/loop0"), image } }) : losetupJson({}));
        if (c.udisksInstalled)
            machine.standInUdisksctl(0);

        machine.cleanup().cleanUp();

        EXPECT_TRUE(QFileInfo::exists(image)) << c.what;
        EXPECT_FALSE(QFileInfo::exists(machine.home() + QStringLiteral("/.local/share/Trash"))) << c.what;
    }
}

TEST(DiskImageCleanup, ALaunchFromElsewhereDoesNothing)
{
    Machine machine;
    const QString image = machine.image(QStringLiteral("Vantle.img"));
    const QString mountPoint = machine.volume(QStringLiteral("Vantle"), QStringLiteral("/dev/loop0"));
    machine.standInLosetup(losetupJson({ { QStringLiteral("/dev/loop0"), image } }));
    machine.standInUdisksctl(0);

    EXPECT_FALSE(machine.cleanup(mountPoint + QStringLiteral("/Vantle.AppImage")).start());
    EXPECT_FALSE(machine.cleanup(QStringLiteral("/usr/bin/Vantle.AppImage")).start());
    QThread::msleep(200); // nothing was started that could still be running
    EXPECT_TRUE(QFileInfo::exists(image));
    EXPECT_TRUE(machine.udisksCalls().isEmpty());
}
