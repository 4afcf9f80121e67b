// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/CommandRunner.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <chrono>
#include <memory>
#include <optional>

// After an install by copying the program out of a mounted installation image into an
// Applications folder, the image is often still attached. A few seconds after launch the
// clean-up finds the attached image whose volume holds a copy of the running program, detaches
// it quietly and moves the image file to the Trash. It never asks and never reports anything.
//
// On Linux the program's "bundle" is the AppImage it runs from ($APPIMAGE) or, otherwise, its
// own executable. Attached images are loop devices (`losetup --list --json`), their volumes
// come from the mount table, and the quiet detach goes through udisks, which only succeeds
// for images the user attached through udisks; the file goes to the Trash either way.
class DiskImageCleanup {
public:
    struct MountedVolume {
        QString device; // /dev/loop0 or one of its partitions, /dev/loop0p1
        QString mountPoint;
    };
    struct AttachedImage {
        QString imagePath; // the backing file
        QString loopDevice; // /dev/loopN
        QList<MountedVolume> volumes;
    };
    // The image to clean up, and the volume that holds the program.
    struct SourceDiskImage {
        AttachedImage image;
        QString mountPoint;
    };

    struct Environment {
        QString bundlePath;
        QString homePath;
        QString mountTablePath = QStringLiteral("/proc/self/mountinfo");
        std::chrono::milliseconds delay { 8000 };
    };

    // The running program's bundle, the user's home folder and the 8-second delay.
    static Environment currentEnvironment();

    DiskImageCleanup(Environment environment, std::shared_ptr<CommandRunner> runner);

    // Only a program started from "/Applications" or "~/Applications" (plain prefixes) cleans up.
    bool isInApplicationsFolder() const;

    // Starts the background task and returns at once; false when the location test said no.
    bool start() const;

    // The background task's work after the delay, blocking.
    void cleanUp() const;

    // Blocking: the first attached image, in listing order, with a volume that holds an item
    // named like the running bundle.
    std::optional<SourceDiskImage> findSourceDiskImage() const;

    // The listing's pieces, pure so captured outputs can be checked.
    struct LoopDevice {
        QString device;
        QString backingFile;
    };
    static QList<LoopDevice> parseLoopDevices(const QByteArray &losetupJson);
    static QList<MountedVolume> parseMountTable(const QByteArray &mountInfo);
    static QList<AttachedImage> attachedImages(
        const QList<LoopDevice> &loops, const QList<MountedVolume> &mounts);

private:
    Environment m_environment;
    std::shared_ptr<CommandRunner> m_runner;
};

// Called once per launch on the main thread; returns at once.
void cleanUpInstallerDiskImage();
