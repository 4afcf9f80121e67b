// SPDX-License-Identifier: GPL-3.0-or-later
// `losetup --list --json` as the clean-up reads it: only absolute backing files that still
// exist on their path are offered, each with its device name.
#include "FuzzCheck.h"

#include "services/DiskImageCleanup.h"

void fuzzOne(const QByteArray &listing)
{
    const QList<DiskImageCleanup::LoopDevice> loops = DiskImageCleanup::parseLoopDevices(listing);
    for (const DiskImageCleanup::LoopDevice &loop : loops) {
        FUZZ_CHECK(loop.backingFile.startsWith(QLatin1Char('/')));
        FUZZ_CHECK(!loop.backingFile.endsWith(QLatin1String(" (deleted)")));
    }
    // Without mounts, every image is listed once and holds no volume.
    const QList<DiskImageCleanup::AttachedImage> images = DiskImageCleanup::attachedImages(loops, {});
    FUZZ_CHECK(images.size() == loops.size());
    for (const DiskImageCleanup::AttachedImage &image : images)
        FUZZ_CHECK(image.volumes.isEmpty());
}
