// SPDX-License-Identifier: GPL-3.0-or-later
// Mount points are read byte for byte as the kernel escapes them, so the tools are handed the
// very path; one whose bytes are not UTF-8 is left alone rather than altered.
#include "services/DiskImageCleanup.h"

#include <gtest/gtest.h>

namespace {

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
