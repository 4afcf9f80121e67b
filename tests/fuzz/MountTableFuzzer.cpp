// SPDX-License-Identifier: GPL-3.0-or-later
// /proc/self/mountinfo as the clean-up reads it, matched against a few loop devices: every
// mount point is an absolute path whose bytes name exactly what the kernel wrote, and an image
// only ever gets the volumes of its own device or its partitions (loop1 never gets loop10's).
#include "FuzzCheck.h"

#include "services/DiskImageCleanup.h"

#include <QFile>
#include <QRegularExpression>

void fuzzOne(const QByteArray &table)
{
    const QList<DiskImageCleanup::MountedVolume> mounts = DiskImageCleanup::parseMountTable(table);
    for (const DiskImageCleanup::MountedVolume &mount : mounts) {
        FUZZ_CHECK(mount.mountPoint.startsWith(QLatin1Char('/')) && !mount.device.isEmpty());
        // Names that do not survive the trip through text are left out rather than altered.
        FUZZ_CHECK(QFile::decodeName(QFile::encodeName(mount.mountPoint)) == mount.mountPoint);
    }
    const QList<DiskImageCleanup::LoopDevice> loops = {
        { QStringLiteral("/dev/loop0"), QStringLiteral("/home/user/Downloads/Vantle.iso") },
        { QStringLiteral("/dev/loop1"), QStringLiteral("/tmp/other image.img") },
        { QStringLiteral("/dev/loop10"), QStringLiteral("/tmp/ten.img") },
    };
    const QList<DiskImageCleanup::AttachedImage> images = DiskImageCleanup::attachedImages(loops, mounts);
    FUZZ_CHECK(images.size() == loops.size());
    for (const DiskImageCleanup::AttachedImage &image : images) {
        const QRegularExpression own(QRegularExpression::anchoredPattern(
            QRegularExpression::escape(image.loopDevice) + QStringLiteral("(p[0-9]+)?")));
        for (const DiskImageCleanup::MountedVolume &volume : image.volumes)
            FUZZ_CHECK(own.match(volume.device).hasMatch());
    }
}
