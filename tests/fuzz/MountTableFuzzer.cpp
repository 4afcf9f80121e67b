// SPDX-License-Identifier: GPL-3.0-or-later
// /proc/self/mountinfo as the clean-up reads it, matched against a few loop devices: every
// mount point is an absolute path whose bytes name exactly what the kernel wrote, and an image
// only ever gets the volumes of its own device or its partitions.
#include "FuzzCheck.h"

#include "services/DiskImageCleanup.h"

#include <QFile>

namespace {

bool belongsTo(const QString &source, const QString &loopDevice)
{
    if (source == loopDevice)
        return true;
    const QString prefix = loopDevice + QLatin1Char('p');
    if (!source.startsWith(prefix) || source.size() == prefix.size())
        return false;
    for (qsizetype i = prefix.size(); i < source.size(); ++i)
        if (source[i] < u'0' || source[i] > u'9')
            return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray table(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<DiskImageCleanup::MountedVolume> mounts = DiskImageCleanup::parseMountTable(table);
    for (const DiskImageCleanup::MountedVolume &mount : mounts) {
        FUZZ_CHECK(mount.mountPoint.startsWith(QLatin1Char('/')));
        FUZZ_CHECK(!mount.device.isEmpty());
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
        for (const DiskImageCleanup::MountedVolume &volume : image.volumes) {
            FUZZ_CHECK(belongsTo(volume.device, image.loopDevice));
        }
    }
    return 0;
}
