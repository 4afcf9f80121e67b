// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/SettingsStore.h"

#include "services/AtomicFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A history of 10,000 colours takes about 2 MB.
constexpr qint64 largestReadableFileSize = 16 * 1024 * 1024;

// QSettings guards every write with "<file>.lock", which holds the writer's process id and,
// while the writer lives, a file lock. A writer killed in the instant between creating that
// file and writing its id leaves an empty one, which QSettings counts as stale only after 30
// seconds: the program would hang that long at its next save. Empty and unlocked, it has no
// owner left.
void clearAbandonedLock(const QString &settingsPath)
{
    const QByteArray lockPath = QFile::encodeName(settingsPath + QStringLiteral(".lock"));
    const int fd = ::open(lockPath.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
    struct stat info { };
    const bool abandoned
        = ::fstat(fd, &info) == 0 && info.st_size == 0 && ::flock(fd, LOCK_EX | LOCK_NB) == 0;
    ::close(fd);
    if (abandoned)
        ::unlink(lockPath.constData());
}

// The bytes of a data file; nullopt when there is none. A file that is there but cannot be
// read (no permission, not a regular file, over the size limit, an I/O error) is moved aside
// first: the next save would replace it, and it may hold the user's colours.
std::optional<QByteArray> readDataFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // Non-blocking, so that a FIFO in its place cannot hang the launch.
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0 && errno == ENOENT)
        return std::nullopt;
    QByteArray bytes;
    bool readable = false;
    struct stat info { };
    if (fd >= 0 && ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode)
        && info.st_size <= largestReadableFileSize) {
        bytes.resize(info.st_size);
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::read(fd, bytes.data() + done, size_t(bytes.size() - done));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                break;
            done += n;
        }
        readable = done == bytes.size();
    }
    if (fd >= 0)
        ::close(fd);
    if (readable)
        return bytes;
    QFile::rename(path, unreadableAsidePath(path));
    return std::nullopt;
}

} // namespace

SettingsStore::SettingsStore(const QString &filePath, QObject *parent)
    : QObject(parent)
    , m_filePath(filePath)
{
    QDir().mkpath(QFileInfo(filePath).absolutePath());
    if (QFileInfo(filePath).size() > largestReadableFileSize) {
        // No file of ours comes near this size; parsing one would stall the launch for seconds.
        // It goes aside whole (a rename, instant) and the program starts on fresh settings.
        QFile::rename(filePath, unreadableAsidePath(filePath));
    }
    open();
    m_settings->allKeys(); // QSettings parses sections lazily; parse all now to see errors
    if (m_settings->status() == QSettings::FormatError) {
        // The next write would replace the file with only what could be parsed: keep the
        // original bytes, which may hold the user's colours.
        QFile::copy(filePath, unreadableAsidePath(filePath));
        // Rebuild a clean file from what could be read; a fresh QSettings also clears the
        // error status, which is sticky otherwise. Data kept in the file by earlier versions
        // goes to its own file, unless a newer one is already there.
        for (const QString &key : m_settings->allKeys()) {
            const QVariant value = m_settings->value(key);
            if (value.typeId() != QMetaType::QByteArray || !QFileInfo::exists(dataFilePath(key)))
                m_unsaved.insert(key, value);
        }
        m_settings.reset();
        QFile::remove(filePath);
        open();
        flush();
    }
}

void SettingsStore::open()
{
    m_settings.reset(); // before the new one, so it does not share the old one's state
    m_settings = std::make_unique<QSettings>(m_filePath, QSettings::IniFormat);
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::standardFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Vantle/Vantle.conf");
}

QString SettingsStore::filePath() const
{
    return m_filePath;
}

QString SettingsStore::dataFilePath(const QString &key) const
{
    return QFileInfo(m_filePath).absoluteDir().filePath(key + QStringLiteral(".json"));
}

void SettingsStore::registerDefaults(const QVariantMap &defaults)
{
    for (auto it = defaults.begin(); it != defaults.end(); ++it)
        m_registered.insert(it.key(), it.value());
}

bool SettingsStore::hasOwnValue(const QString &key) const
{
    const auto unsaved = m_unsaved.constFind(key);
    if (unsaved != m_unsaved.constEnd())
        return unsaved->isValid();
    return m_settings->contains(key) || QFileInfo::exists(dataFilePath(key));
}

QVariant SettingsStore::objectForKey(const QString &key) const
{
    const auto unsaved = m_unsaved.constFind(key);
    const QVariant own = unsaved != m_unsaved.constEnd() ? *unsaved : m_settings->value(key);
    if (own.isValid())
        return own;
    return m_registered.value(key);
}

std::optional<QString> SettingsStore::stringForKey(const QString &key) const
{
    const QVariant v = objectForKey(key);
    switch (v.typeId()) {
    case QMetaType::QString:
        return v.toString();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return v.toString();
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        return std::nullopt;
    }
}

bool SettingsStore::boolForKey(const QString &key) const
{
    const QVariant v = objectForKey(key);
    if (v.typeId() == QMetaType::QString) {
        // Values read back from the file are text.
        const QString text = v.toString().trimmed().toLower();
        if (text == u"true" || text == u"yes")
            return true;
        bool ok = false;
        const double number = text.toDouble(&ok);
        return ok && number != 0;
    }
    if (v.typeId() == QMetaType::QByteArray)
        return false;
    return v.toBool();
}

qint64 SettingsStore::integerForKey(const QString &key) const
{
    const QVariant v = objectForKey(key);
    switch (v.typeId()) {
    case QMetaType::Bool:
        return v.toBool() ? 1 : 0;
    case QMetaType::Int:
    case QMetaType::LongLong:
        return v.toLongLong();
    case QMetaType::Double: {
        const double d = v.toDouble();
        return d >= -9.2e18 && d <= 9.2e18 ? static_cast<qint64>(d) : 0;
    }
    case QMetaType::QString: {
        const QString text = v.toString().trimmed();
        bool ok = false;
        const qint64 whole = text.toLongLong(&ok);
        if (ok)
            return whole;
        const double d = text.toDouble(&ok);
        return ok && d >= -9.2e18 && d <= 9.2e18 ? static_cast<qint64>(d) : 0;
    }
    default:
        return 0;
    }
}

std::optional<QByteArray> SettingsStore::dataForKey(const QString &key) const
{
    if (!m_unsaved.contains(key)) {
        if (std::optional<QByteArray> own = readDataFile(dataFilePath(key)))
            return own;
    }
    // Earlier versions kept data in the settings file itself; it stays readable there until
    // the next write of the key moves it.
    const QVariant v = objectForKey(key);
    if (v.typeId() != QMetaType::QByteArray)
        return std::nullopt;
    return v.toByteArray();
}

bool SettingsStore::setBool(const QString &key, bool value)
{
    return write(key, value);
}

bool SettingsStore::setInteger(const QString &key, qint64 value)
{
    return write(key, value);
}

bool SettingsStore::setString(const QString &key, const QString &value)
{
    return write(key, value);
}

bool SettingsStore::setData(const QString &key, const QByteArray &value)
{
    return write(key, value);
}

bool SettingsStore::removeObject(const QString &key)
{
    return write(key, QVariant());
}

namespace {

// Whether writing `value` would leave the file as it is: the stored text is the same (a value
// read back from the file is text, so a stored "8" or "true" holds the integer 8 or true).
bool storesSameText(const QVariant &stored, const QVariant &value)
{
    if (!stored.isValid() || !value.isValid())
        return !stored.isValid() && !value.isValid();
    if (stored.typeId() == value.typeId())
        return stored == value;
    const auto isText = [](const QVariant &v) {
        switch (v.typeId()) {
        case QMetaType::QString:
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::LongLong:
            return true;
        default:
            return false;
        }
    };
    return isText(stored) && isText(value) && stored.toString() == value.toString();
}

} // namespace

bool SettingsStore::holds(const QString &key, const QVariant &value) const
{
    if (!m_unsaved.isEmpty() || m_settings->status() != QSettings::NoError)
        return false;
    if (value.typeId() != QMetaType::QByteArray)
        return storesSameText(m_settings->value(key), value) && !QFileInfo::exists(dataFilePath(key));
    const QByteArray bytes = value.toByteArray();
    if (QFileInfo(dataFilePath(key)).size() != bytes.size() || m_settings->contains(key))
        return false;
    QFile file(dataFilePath(key));
    return file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

bool SettingsStore::write(const QString &key, const QVariant &value)
{
    if (holds(key, value)) {
        // Already on disk: rewriting the file (Vantle writes some values back at every
        // launch) would cost a disk write and nothing else.
        Q_EMIT changed(key);
        return true;
    }
    m_unsaved.insert(key, value);
    const bool ok = flush();
    Q_EMIT changed(key);
    return ok;
}

bool SettingsStore::flush()
{
    // Data (the colour history, up to megabytes) has a file of its own: reading and writing
    // it as raw bytes takes a fraction of the time QSettings spends escaping it into an INI
    // value, and the small settings file stays quick to rewrite.
    bool allSaved = true;
    bool settingsChanged = false;
    QStringList saved;
    QStringList applied; // to the settings file, saved once it is synced
    for (auto it = m_unsaved.constBegin(); it != m_unsaved.constEnd(); ++it) {
        const QString &key = it.key();
        const QString dataPath = dataFilePath(key);
        if (it->typeId() == QMetaType::QByteArray) {
            if (writeFileAtomically(dataPath, it->toByteArray())) {
                allSaved = false;
                continue;
            }
            saved.append(key);
            if (m_settings->contains(key)) { // an earlier version's copy
                m_settings->remove(key);
                settingsChanged = true;
            }
            continue;
        }
        if (QFileInfo::exists(dataPath) && !QFile::remove(dataPath)) {
            allSaved = false; // it would still be read: try again at the next write
            continue;
        }
        if (it->isValid())
            m_settings->setValue(key, *it);
        else
            m_settings->remove(key);
        applied.append(key);
        settingsChanged = true;
    }
    if (settingsChanged) {
        // QSettings writes through a temporary file and a rename, so the file on disk is
        // always either the old or the new whole.
        clearAbandonedLock(m_filePath);
        m_settings->sync();
        if (m_settings->status() == QSettings::NoError) {
            saved.append(applied);
        } else {
            allSaved = false;
            open(); // clears the sticky error, so the next write can tell whether it reached the disk
        }
    }
    for (const QString &key : saved)
        m_unsaved.remove(key);
    return allSaved;
}
