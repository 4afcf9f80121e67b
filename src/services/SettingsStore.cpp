#include "services/SettingsStore.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

SettingsStore::SettingsStore(const QString &filePath, QObject *parent)
    : QObject(parent)
    , m_filePath(filePath)
{
    QDir().mkpath(QFileInfo(filePath).absolutePath());
    open();
    m_settings->allKeys(); // QSettings parses sections lazily; parse all now to see errors
    if (m_settings->status() == QSettings::FormatError) {
        // The next write would replace the file with only what could be parsed: keep the
        // original bytes, which may hold the user's colours.
        const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
        QFile::copy(filePath, filePath + QStringLiteral(".unreadable-") + stamp);
        // Rebuild a clean file from what could be read; a fresh QSettings also clears the
        // error status, which is sticky otherwise.
        for (const QString &key : m_settings->allKeys())
            m_unsaved.insert(key, m_settings->value(key));
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
    return m_settings->contains(key);
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

bool SettingsStore::write(const QString &key, const QVariant &value)
{
    m_unsaved.insert(key, value);
    const bool ok = flush();
    Q_EMIT changed(key);
    return ok;
}

bool SettingsStore::flush()
{
    for (auto it = m_unsaved.constBegin(); it != m_unsaved.constEnd(); ++it) {
        if (it->isValid())
            m_settings->setValue(it.key(), *it);
        else
            m_settings->remove(it.key());
    }
    // QSettings writes through a temporary file and a rename, so the file on disk is always
    // either the old or the new whole.
    m_settings->sync();
    if (m_settings->status() == QSettings::NoError) {
        m_unsaved.clear();
        return true;
    }
    open(); // clears the sticky error, so the next write can tell whether it reached the disk
    return false;
}
