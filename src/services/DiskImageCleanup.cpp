// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/DiskImageCleanup.h"

#include "services/ProcessCommandRunner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QStringList>
#include <thread>

namespace {

// Paths reach us as bytes; a name that does not survive the trip through QString (bytes that
// are not UTF-8) could point somewhere else, so such an entry is left alone.
std::optional<QString> pathFromBytes(const QByteArray &bytes)
{
    const QString path = QFile::decodeName(bytes);
    if (path.isEmpty() || QFile::encodeName(path) != bytes)
        return std::nullopt;
    return path;
}

// The mount table writes space, tab, newline and backslash in a path as \ooo octal escapes.
QByteArray decodeMountTableField(const QByteArray &field)
{
    QByteArray decoded;
    decoded.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const auto isOctal
            = [&](qsizetype at) { return at < field.size() && field[at] >= '0' && field[at] <= '7'; };
        if (field[i] == '\\' && isOctal(i + 1) && isOctal(i + 2) && isOctal(i + 3)) {
            decoded += char(((field[i + 1] - '0') << 6) | ((field[i + 2] - '0') << 3) | (field[i + 3] - '0'));
            i += 3;
        } else {
            decoded += field[i];
        }
    }
    return decoded;
}

bool isDeviceOrPartition(const QString &source, const QString &loopDevice)
{
    if (source == loopDevice)
        return true;
    const QString prefix = loopDevice + QLatin1Char('p');
    if (!source.startsWith(prefix) || source.size() == prefix.size())
        return false;
    for (qsizetype i = prefix.size(); i < source.size(); ++i) {
        if (!source[i].isDigit())
            return false;
    }
    return true;
}

} // namespace

DiskImageCleanup::Environment DiskImageCleanup::currentEnvironment()
{
    Environment environment;
    const QString appImage = qEnvironmentVariable("APPIMAGE");
    environment.bundlePath = appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage;
    environment.homePath = QDir::homePath();
    return environment;
}

DiskImageCleanup::DiskImageCleanup(Environment environment, std::shared_ptr<CommandRunner> runner)
    : m_environment(std::move(environment))
    , m_runner(std::move(runner))
{
}

bool DiskImageCleanup::isInApplicationsFolder() const
{
    const QString &bundle = m_environment.bundlePath;
    return bundle.startsWith(QStringLiteral("/Applications"))
        || bundle.startsWith(m_environment.homePath + QStringLiteral("/Applications"));
}

bool DiskImageCleanup::start() const
{
    if (!isInApplicationsFolder())
        return false;
    // A detached thread rather than the shared pool: quitting the program must not wait for
    // the delay, and the task only works on its own copies.
    std::thread([task = *this] {
        std::this_thread::sleep_for(task.m_environment.delay);
        task.cleanUp();
    }).detach();
    return true;
}

void DiskImageCleanup::cleanUp() const
{
    const std::optional<SourceDiskImage> source = findSourceDiskImage();
    if (!source)
        return;
    QStringList unmounted;
    for (const MountedVolume &volume : source->image.volumes) {
        // A volume mounted at two places is unmounted once.
        if (unmounted.contains(volume.device))
            continue;
        unmounted.append(volume.device);
        if (!m_runner->run(QStringLiteral("udisksctl"),
                { QStringLiteral("unmount"), QStringLiteral("-b"), volume.device,
                    QStringLiteral("--no-user-interaction") },
                false))
            return;
    }
    if (!m_runner->run(QStringLiteral("udisksctl"),
            { QStringLiteral("loop-delete"), QStringLiteral("-b"), source->image.loopDevice,
                QStringLiteral("--no-user-interaction") },
            false))
        return;
    // Whatever udisks answered, the image file goes. Without the user's data folder Qt's
    // trash silently creates "Trash" in the working folder instead.
    if (!QFileInfo(source->image.imagePath).isFile())
        return;
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile::moveToTrash(source->image.imagePath);
}

std::optional<DiskImageCleanup::SourceDiskImage> DiskImageCleanup::findSourceDiskImage() const
{
    const QString bundleName = QFileInfo(m_environment.bundlePath).fileName();
    if (bundleName.isEmpty())
        return std::nullopt;
    const std::optional<QByteArray> listing = m_runner->run(
        QStringLiteral("losetup"), { QStringLiteral("--list"), QStringLiteral("--json") }, true);
    if (!listing)
        return std::nullopt;
    const QList<LoopDevice> loops = parseLoopDevices(*listing);
    if (loops.isEmpty())
        return std::nullopt;
    QFile mountTable(m_environment.mountTablePath);
    if (!mountTable.open(QIODevice::ReadOnly))
        return std::nullopt;
    // The kernel's table reports a size of 0: read to the end rather than by size.
    const QList<MountedVolume> mounts = parseMountTable(mountTable.readAll());

    for (const AttachedImage &image : attachedImages(loops, mounts)) {
        for (const MountedVolume &volume : image.volumes) {
            if (QFileInfo::exists(volume.mountPoint + QLatin1Char('/') + bundleName))
                return SourceDiskImage { image, volume.mountPoint };
        }
    }
    return std::nullopt;
}

QList<DiskImageCleanup::LoopDevice> DiskImageCleanup::parseLoopDevices(const QByteArray &losetupJson)
{
    // losetup writes the backing file's bytes as they are; bytes that are not UTF-8 make the
    // document unreadable, and then nothing is cleaned up.
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(losetupJson, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return {};
    QList<LoopDevice> loops;
    const QJsonArray devices = document.object().value(QLatin1String("loopdevices")).toArray();
    for (const QJsonValue &entry : devices) {
        const QJsonObject device = entry.toObject();
        const QJsonValue name = device.value(QLatin1String("name"));
        const QJsonValue backingFile = device.value(QLatin1String("back-file"));
        if (!name.isString() || !backingFile.isString())
            continue;
        const QString file = backingFile.toString();
        // The kernel marks a backing file removed since attaching; whatever sits at that path
        // now is not the image.
        if (file.isEmpty() || file.endsWith(QLatin1String(" (deleted)"))
            || !file.startsWith(QLatin1Char('/')))
            continue;
        loops.append({ name.toString(), file });
    }
    return loops;
}

QList<DiskImageCleanup::MountedVolume> DiskImageCleanup::parseMountTable(const QByteArray &mountInfo)
{
    // mountinfo: id parent major:minor root mount-point options [optional fields] - type source ...
    QList<MountedVolume> mounts;
    for (const QByteArray &line : mountInfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf(QByteArray("-"));
        if (separator < 6 || separator + 2 >= fields.size())
            continue;
        const std::optional<QString> mountPoint = pathFromBytes(decodeMountTableField(fields[4]));
        const std::optional<QString> source = pathFromBytes(decodeMountTableField(fields[separator + 2]));
        if (!mountPoint || !source || !mountPoint->startsWith(QLatin1Char('/')))
            continue;
        mounts.append({ *source, *mountPoint });
    }
    return mounts;
}

QList<DiskImageCleanup::AttachedImage> DiskImageCleanup::attachedImages(
    const QList<LoopDevice> &loops, const QList<MountedVolume> &mounts)
{
    QList<AttachedImage> images;
    for (const LoopDevice &loop : loops) {
        AttachedImage image { loop.backingFile, loop.device, {} };
        for (const MountedVolume &mount : mounts) {
            if (isDeviceOrPartition(mount.device, loop.device))
                image.volumes.append(mount);
        }
        images.append(image);
    }
    return images;
}

void cleanUpInstallerDiskImage()
{
    DiskImageCleanup(DiskImageCleanup::currentEnvironment(), std::make_shared<ProcessCommandRunner>())
        .start();
}
