// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestPortalBackend.h"

#include <QDBusMetaType>

QDBusArgument &operator<<(QDBusArgument &argument, const TestPortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TestPortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

namespace {

struct Color {
    double red, green, blue;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Color &color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Color &color)
{
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

} // namespace

Q_DECLARE_METATYPE(Color)

TestPortalBackend::TestPortalBackend(const QDBusConnection &bus)
    : m_bus(bus)
{
    qDBusRegisterMetaType<TestPortalShortcut>();
    qDBusRegisterMetaType<QList<TestPortalShortcut>>();
    qDBusRegisterMetaType<Color>();
    new TestScreenshotAdaptor(this);
    new TestAccessAdaptor(this);
    m_shortcuts = new TestGlobalShortcutsAdaptor(this);
    m_isRegistered
        = m_bus.registerObject(path, this, QDBusConnection::ExportAdaptors) && m_bus.registerService(busName);
}

QByteArray TestPortalBackend::portalFile()
{
    return QByteArrayLiteral("[portal]\nDBusName=") + busName.toLatin1()
        + QByteArrayLiteral(
            "\nInterfaces=org.freedesktop.impl.portal.Screenshot;"
            "org.freedesktop.impl.portal.Access;org.freedesktop.impl.portal.GlobalShortcuts;\n"
            "UseIn=")
        + desktopName.toLatin1() + '\n';
}

void TestPortalBackend::activate(const QString &session, const QString &shortcutId)
{
    Q_EMIT m_shortcuts->Activated(QDBusObjectPath(session), shortcutId, 1234, {});
    Q_EMIT m_shortcuts->Deactivated(QDBusObjectPath(session), shortcutId, 1240, {});
}

TestScreenshotAdaptor::TestScreenshotAdaptor(TestPortalBackend *backend)
    : QDBusAbstractAdaptor(backend)
    , m_backend(backend)
{
}

uint TestScreenshotAdaptor::PickColor(
    const QDBusObjectPath &, const QString &, const QString &, const QVariantMap &, QVariantMap &results)
{
    ++m_backend->picks;
    if (m_backend->pickResponse == 0) {
        results.insert(QStringLiteral("color"),
            QVariant::fromValue(Color { m_backend->pickRed, m_backend->pickGreen, m_backend->pickBlue }));
    }
    return m_backend->pickResponse;
}

uint TestScreenshotAdaptor::Screenshot(
    const QDBusObjectPath &, const QString &, const QString &, const QVariantMap &, QVariantMap &)
{
    return 2; // not what a colour picker asks for
}

TestAccessAdaptor::TestAccessAdaptor(TestPortalBackend *backend)
    : QDBusAbstractAdaptor(backend)
{
}

uint TestAccessAdaptor::AccessDialog(const QDBusObjectPath &, const QString &, const QString &,
    const QString &, const QString &, const QString &, const QVariantMap &, QVariantMap &)
{
    return 0;
}

TestGlobalShortcutsAdaptor::TestGlobalShortcutsAdaptor(TestPortalBackend *backend)
    : QDBusAbstractAdaptor(backend)
    , m_backend(backend)
{
}

uint TestGlobalShortcutsAdaptor::CreateSession(const QDBusObjectPath &, const QDBusObjectPath &sessionHandle,
    const QString &, const QVariantMap &, QVariantMap &results)
{
    auto *session = new QObject(m_backend);
    new TestSessionAdaptor(session, m_backend, sessionHandle.path());
    m_backend->m_bus.registerObject(sessionHandle.path(), session, QDBusConnection::ExportAdaptors);
    m_backend->sessions << sessionHandle.path();
    results.insert(QStringLiteral("session_handle"), sessionHandle.path());
    return 0;
}

uint TestGlobalShortcutsAdaptor::BindShortcuts(const QDBusObjectPath &, const QDBusObjectPath &sessionHandle,
    const QList<TestPortalShortcut> &shortcuts, const QString &, const QVariantMap &, QVariantMap &results)
{
    m_backend->boundSessions << sessionHandle.path();
    m_backend->binds << shortcuts;
    // Bound as asked, each described by its preferred trigger.
    QList<TestPortalShortcut> bound;
    for (const TestPortalShortcut &shortcut : shortcuts) {
        bound << TestPortalShortcut { shortcut.id,
            { { QStringLiteral("description"), shortcut.properties.value(QStringLiteral("description")) },
                { QStringLiteral("trigger_description"),
                    shortcut.properties.value(QStringLiteral("preferred_trigger")) } } };
    }
    results.insert(QStringLiteral("shortcuts"), QVariant::fromValue(bound));
    return 0;
}

uint TestGlobalShortcutsAdaptor::ListShortcuts(
    const QDBusObjectPath &, const QDBusObjectPath &sessionHandle, QVariantMap &results)
{
    QList<TestPortalShortcut> listed;
    for (int i = m_backend->boundSessions.size() - 1; i >= 0; --i) {
        if (m_backend->boundSessions[i] == sessionHandle.path()) {
            listed = m_backend->binds[i];
            break;
        }
    }
    results.insert(QStringLiteral("shortcuts"), QVariant::fromValue(listed));
    return 0;
}

TestSessionAdaptor::TestSessionAdaptor(QObject *session, TestPortalBackend *backend, QString path)
    : QDBusAbstractAdaptor(session)
    , m_backend(backend)
    , m_path(std::move(path))
{
}

void TestSessionAdaptor::Close()
{
    m_backend->closedSessions << m_path;
    m_backend->m_bus.unregisterObject(m_path);
    parent()->deleteLater();
}
