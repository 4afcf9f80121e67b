// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

// A desktop-portal backend for tests, placed behind the real xdg-desktop-portal frontend: it
// implements org.freedesktop.impl.portal.Screenshot (PickColor), .Access (needed before the
// frontend offers Screenshot at all) and .GlobalShortcuts. The frontend finds it through a
// .portal file in XDG_DESKTOP_PORTAL_DIR, so our clients meet the frontend's own request
// handles, session objects and signal order.

struct TestPortalShortcut {
    QString id;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(TestPortalShortcut)
QDBusArgument &operator<<(QDBusArgument &argument, const TestPortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, TestPortalShortcut &shortcut);

class TestGlobalShortcutsAdaptor;

class TestPortalBackend : public QObject {
    Q_OBJECT
public:
    static inline const QString desktopName = QStringLiteral("vantletest");
    static inline const QString busName = QStringLiteral("org.freedesktop.impl.portal.desktop.vantletest");
    static inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");

    // Registers the backend on `bus` and claims its bus name; see isRegistered().
    explicit TestPortalBackend(const QDBusConnection &bus);
    bool isRegistered() const { return m_isRegistered; }

    // The .portal file the frontend reads, to be written into XDG_DESKTOP_PORTAL_DIR.
    static QByteArray portalFile();

    // The next picks' answer: response 0 with the colour, or 1 (cancelled) / 2 (failed).
    uint pickResponse = 0;
    double pickRed = 0.9999;
    double pickGreen = 0.5;
    double pickBlue = 0.00196;

    // What the frontend asked for, in order.
    int picks = 0;
    QStringList sessions; // session handles of CreateSession
    QStringList closedSessions; // sessions closed through their Session object
    QList<QList<TestPortalShortcut>> binds;
    QStringList boundSessions;

    // Presses a shortcut of `session` (the frontend relays it to the session's owner only).
    void activate(const QString &session, const QString &shortcutId);

private:
    friend class TestScreenshotAdaptor;
    friend class TestAccessAdaptor;
    friend class TestGlobalShortcutsAdaptor;
    friend class TestSessionAdaptor;

    QDBusConnection m_bus;
    TestGlobalShortcutsAdaptor *m_shortcuts = nullptr;
    bool m_isRegistered = false;
};

class TestScreenshotAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Screenshot")
    Q_PROPERTY(uint version READ version)
public:
    explicit TestScreenshotAdaptor(TestPortalBackend *backend);
    uint version() const { return 2; }
public Q_SLOTS:
    uint PickColor(const QDBusObjectPath &handle, const QString &appId, const QString &parentWindow,
        const QVariantMap &options, QVariantMap &results);
    uint Screenshot(const QDBusObjectPath &handle, const QString &appId, const QString &parentWindow,
        const QVariantMap &options, QVariantMap &results);

private:
    TestPortalBackend *m_backend;
};

class TestAccessAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Access")
public:
    explicit TestAccessAdaptor(TestPortalBackend *backend);
public Q_SLOTS:
    uint AccessDialog(const QDBusObjectPath &handle, const QString &appId, const QString &parentWindow,
        const QString &title, const QString &subtitle, const QString &body, const QVariantMap &options,
        QVariantMap &results);
};

class TestGlobalShortcutsAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.GlobalShortcuts")
    Q_PROPERTY(uint version READ version)
public:
    explicit TestGlobalShortcutsAdaptor(TestPortalBackend *backend);
    uint version() const { return 1; }
public Q_SLOTS:
    uint CreateSession(const QDBusObjectPath &handle, const QDBusObjectPath &sessionHandle,
        const QString &appId, const QVariantMap &options, QVariantMap &results);
    uint BindShortcuts(const QDBusObjectPath &handle, const QDBusObjectPath &sessionHandle,
        const QList<TestPortalShortcut> &shortcuts, const QString &parentWindow, const QVariantMap &options,
        QVariantMap &results);
    uint ListShortcuts(
        const QDBusObjectPath &handle, const QDBusObjectPath &sessionHandle, QVariantMap &results);
Q_SIGNALS:
    void Activated(const QDBusObjectPath &session_handle, const QString &shortcut_id, qulonglong timestamp,
        const QVariantMap &options);
    void Deactivated(const QDBusObjectPath &session_handle, const QString &shortcut_id, qulonglong timestamp,
        const QVariantMap &options);

private:
    TestPortalBackend *m_backend;
};

// The object the frontend closes a session through.
class TestSessionAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Session")
public:
    TestSessionAdaptor(QObject *session, TestPortalBackend *backend, QString path);
public Q_SLOTS:
    void Close();
Q_SIGNALS:
    void Closed();

private:
    TestPortalBackend *m_backend;
    QString m_path;
};
