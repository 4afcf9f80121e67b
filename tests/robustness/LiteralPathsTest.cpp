// SPDX-License-Identifier: GPL-3.0-or-later
// Image and mount paths reach the tools (udisksctl, losetup) exactly as they are: no shell ever
// sees them, and a mount point whose bytes are not UTF-8 is left alone rather than altered.
#include "services/DiskImageCleanup.h"
#include "services/ProcessCommandRunner.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

const QStringList hostilePaths = {
    QStringLiteral("/media/user/Vantle 1.0/with spaces"),
    QStringLiteral("/media/user/\"double\" and 'single' quotes"),
    QStringLiteral("/media/user/$(touch pwned) `touch pwned` ; rm -rf ~ &"),
    QStringLiteral("/media/user/new\nline\tand tab"),
    QStringLiteral("/media/user/*?[glob] ~user $HOME %s %n"),
    QStringLiteral("/media/user/-b --no-user-interaction"),
};

TEST(LiteralPaths, ReachTheProgramAsOneArgumentEach)
{
    ProcessCommandRunner runner;
    // printf prints each argument as it received it, each ending in a NUL byte.
    QStringList arguments { QStringLiteral("%s\\0") };
    arguments += hostilePaths;
    const std::optional<QByteArray> output = runner.run(QStringLiteral("printf"), arguments, true);
    ASSERT_TRUE(output.has_value());
    QList<QByteArray> received = output->split('\0');
    ASSERT_EQ(received.takeLast(), QByteArray());
    ASSERT_EQ(received.size(), hostilePaths.size());
    for (qsizetype i = 0; i < received.size(); ++i)
        EXPECT_EQ(QString::fromUtf8(received[i]), hostilePaths[i]);
    EXPECT_FALSE(QFile::exists(QStringLiteral("pwned")));
}

TEST(LiteralPaths, MountPointsAreReadByteForByte)
{
    // The kernel's escapes for space, tab, newline and backslash; everything else as it is.
    const QByteArray mountInfo
        = "101 29 7:0 / /media/user/Vantle\\0401.0\\012$(id)\\134x ro - iso9660 /dev/loop0 ro\n"
          "102 29 7:1 / /media/user/\xff\xfe-not-utf8 ro - iso9660 /dev/loop1 ro\n"
          "103 29 7:2 / /media/user/\"q\"\\011'q' ro - iso9660 /dev/loop2 ro\n";
    const QList<DiskImageCleanup::MountedVolume> mounts = DiskImageCleanup::parseMountTable(mountInfo);
    ASSERT_EQ(mounts.size(), 2);
    EXPECT_EQ(mounts[0].mountPoint, QStringLiteral("/media/user/Vantle 1.0\n$(id)\\x"));
    EXPECT_EQ(mounts[0].device, QStringLiteral("/dev/loop0"));
    EXPECT_EQ(mounts[1].mountPoint, QStringLiteral("/media/user/\"q\"\t'q'"));
    EXPECT_EQ(mounts[1].device, QStringLiteral("/dev/loop2"));
}

} // namespace
