// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariantMap>
#include <memory>
#include <optional>

// The user's preferences and colour history: a key-value store over one INI file
// (~/.config/Vantle/Vantle.conf), with registered defaults and a change signal. A data value
// (the colour history) is kept as raw bytes in a file of its own beside it, named after its
// key (colorHistory.json), so one store per folder; data that earlier versions kept in the
// INI file is read from there until its next write moves it.
//
// - A registered default is answered only while the key holds no value of its own; it lives
//   in memory and is never written to disk.
// - Reads give the store's meaning to a missing or unreadable value: integer 0, boolean false,
//   string and data absent. Nothing is cached by callers: every reader asks at use.
// - Every write goes to disk at once (atomically, through a temporary file); writing the value
//   the file already holds leaves the file alone (and still signals). A write that
//   cannot reach the disk keeps the value in memory and reports false; the file is untouched,
//   and the next write that succeeds carries every value not yet saved.
// - A file that cannot be parsed is copied aside (Vantle.conf.unreadable-<UTC time>) before
//   anything rewrites it; what could be read stays in use. A file over 16 MB (none of ours
//   comes near) is moved aside under the same name unread, and the store starts empty; so is
//   a data file that cannot be read (colorHistory.json.unreadable-<UTC time>).
// - `changed` fires after every write and removal, on the thread that wrote (the main one).
class SettingsStore : public QObject {
    Q_OBJECT
public:
    explicit SettingsStore(const QString &filePath, QObject *parent = nullptr);
    ~SettingsStore() override;

    // $XDG_CONFIG_HOME/Vantle/Vantle.conf (~/.config when unset).
    static QString standardFilePath();
    QString filePath() const;
    QString dataFilePath(const QString &key) const;

    void registerDefaults(const QVariantMap &defaults);

    bool hasOwnValue(const QString &key) const;
    std::optional<QString> stringForKey(const QString &key) const;
    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    std::optional<QByteArray> dataForKey(const QString &key) const;

    bool setBool(const QString &key, bool value);
    bool setInteger(const QString &key, qint64 value);
    bool setString(const QString &key, const QString &value);
    bool setData(const QString &key, const QByteArray &value);
    bool removeObject(const QString &key);

Q_SIGNALS:
    void changed(const QString &key);

private:
    void open();
    QVariant objectForKey(const QString &key) const;
    // Whether the files already hold `value` for `key`, so writing it would change nothing.
    bool holds(const QString &key, const QVariant &value) const;
    bool write(const QString &key, const QVariant &value);
    bool flush();

    QString m_filePath;
    std::unique_ptr<QSettings> m_settings;
    QVariantMap m_registered;
    // Values written but not yet on disk; an invalid QVariant marks a removal.
    QHash<QString, QVariant> m_unsaved;
};
