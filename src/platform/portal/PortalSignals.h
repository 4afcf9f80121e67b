// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractInterface>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantMap>

// The portal's signals as Qt signals, so that they connect with member pointers: a
// QDBusAbstractInterface subscribes on the bus when something connects to one of its signals
// (connectNotify), and lets go when the last connection goes.

inline const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

// org.freedesktop.portal.Request's Response, of every Request object of the portal: a
// subscription made only once a reply names an unexpected handle would miss a Response sent
// right after that reply. `responsePath()` tells, while a Response is delivered, whose it is.
class PortalRequestSignals : public QDBusAbstractInterface, protected QDBusContext {
    Q_OBJECT
public:
    PortalRequestSignals(const QDBusConnection &bus, QObject *parent);

    // Only valid inside a connection to `Response`, which must be direct.
    QString responsePath() const { return message().path(); }

Q_SIGNALS:
    void Response(uint response, const QVariantMap &results);
};

// org.freedesktop.portal.Settings: the desktop's appearance and other settings.
class PortalSettingsSignals : public QDBusAbstractInterface {
    Q_OBJECT
public:
    PortalSettingsSignals(const QDBusConnection &bus, QObject *parent);

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);
};

// org.freedesktop.portal.GlobalShortcuts: presses and releases of the shortcuts the desktop bound.
class PortalShortcutSignals : public QDBusAbstractInterface {
    Q_OBJECT
public:
    PortalShortcutSignals(const QDBusConnection &bus, QObject *parent);

Q_SIGNALS:
    void Activated(const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong timestamp,
        const QVariantMap &options);
    void Deactivated(const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong timestamp,
        const QVariantMap &options);
};
