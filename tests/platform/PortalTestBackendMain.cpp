// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop-portal backend for desktop tests, placed behind the real xdg-desktop-portal frontend:
// it implements org.freedesktop.impl.portal.Screenshot (PickColor), .Access (needed before the
// frontend offers Screenshot at all) and .GlobalShortcuts, so Vantle meets the frontend's own
// request handles, session objects and signal order. `portal_test_backend DIR` writes the
// .portal file the frontend is to read from DIR (XDG_DESKTOP_PORTAL_DIR). The test script gives
// its orders through org.vantle.TestPortal at /org/vantle/TestPortal (dbus-send):
//   SetPick(u response, d red, d green, d blue)   the answer to the next picks
//   Activate(s shortcutId) -> b                   press a shortcut the newest session holds
//   Picks() -> i, Binds() -> i                    how often the frontend asked for these so far
//   BoundShortcuts() -> as                        the shortcuts the newest session holds
// Like the desktops, it keeps shortcuts per session token across sessions, takes them from
// CreateSession's `shortcuts` option (as Plasma 5.27 does) and from BindShortcuts (as later
// desktops do), and a shortcut it already holds keeps its trigger at CreateSession.
#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QFile>
#include <QTextStream>

namespace {

const QString busName = QStringLiteral("org.freedesktop.impl.portal.desktop.vantletest");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

} // namespace

struct TestPortalShortcut {
    QString id;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(TestPortalShortcut)

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

// What the frontend asked for, and what the next pick answers.
struct PortalState {
    uint pickResponse = 0; // 0 with the colour, 1 cancelled, 2 failed
    double red = 0.9999, green = 0.5, blue = 0.00196;
    int picks = 0;
    int binds = 0;
    QString newestSession;
    QHash<QString, QList<TestPortalShortcut>> heldByToken;
    QList<TestPortalShortcut> &held(const QString &session) { return heldByToken[session.section(u'/', -1)]; }
};

// The shortcut as the desktop lists it: its description and its trigger.
TestPortalShortcut described(const TestPortalShortcut &shortcut)
{
    return { shortcut.id,
        { { QStringLiteral("description"), shortcut.properties.value(QStringLiteral("description")) },
            { QStringLiteral("trigger_description"),
                shortcut.properties.value(QStringLiteral("preferred_trigger")) } } };
}

class TestScreenshotAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Screenshot")
    Q_PROPERTY(uint version READ version)
public:
    TestScreenshotAdaptor(QObject *parent, PortalState &state)
        : QDBusAbstractAdaptor(parent)
        , m_state(state)
    {
    }
    uint version() const { return 2; }
public Q_SLOTS:
    uint PickColor(
        const QDBusObjectPath &, const QString &, const QString &, const QVariantMap &, QVariantMap &results)
    {
        ++m_state.picks;
        if (m_state.pickResponse == 0) {
            QDBusArgument color;
            color.beginStructure();
            color << m_state.red << m_state.green << m_state.blue;
            color.endStructure();
            results.insert(QStringLiteral("color"), QVariant::fromValue(color));
        }
        return m_state.pickResponse;
    }

private:
    PortalState &m_state;
};

class TestAccessAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Access")
public:
    explicit TestAccessAdaptor(QObject *parent)
        : QDBusAbstractAdaptor(parent)
    {
    }
public Q_SLOTS:
    uint AccessDialog(const QDBusObjectPath &, const QString &, const QString &, const QString &,
        const QString &, const QString &, const QVariantMap &, QVariantMap &)
    {
        return 0;
    }
};

// The object the frontend closes a session through.
class TestSessionAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Session")
public:
    explicit TestSessionAdaptor(QObject *session)
        : QDBusAbstractAdaptor(session)
    {
    }
public Q_SLOTS:
    void Close() { parent()->deleteLater(); }
Q_SIGNALS:
    void Closed();
};

class TestGlobalShortcutsAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.GlobalShortcuts")
    Q_PROPERTY(uint version READ version)
public:
    TestGlobalShortcutsAdaptor(QObject *parent, PortalState &state, QDBusConnection bus)
        : QDBusAbstractAdaptor(parent)
        , m_state(state)
        , m_bus(std::move(bus))
    {
    }
    uint version() const { return 1; }
public Q_SLOTS:
    uint CreateSession(const QDBusObjectPath &, const QDBusObjectPath &sessionHandle, const QString &,
        const QVariantMap &options, QVariantMap &results)
    {
        auto *session = new QObject(this);
        new TestSessionAdaptor(session);
        m_bus.registerObject(sessionHandle.path(), session, QDBusConnection::ExportAdaptors);
        m_state.newestSession = sessionHandle.path();
        QList<TestPortalShortcut> &held = m_state.held(sessionHandle.path());
        for (const TestPortalShortcut &shortcut :
            qdbus_cast<QList<TestPortalShortcut>>(options.value(QStringLiteral("shortcuts")))) {
            if (std::none_of(held.cbegin(), held.cend(), [&](const auto &h) { return h.id == shortcut.id; }))
                held << described(shortcut);
        }
        results.insert(QStringLiteral("session_handle"), sessionHandle.path());
        return 0;
    }
    uint BindShortcuts(const QDBusObjectPath &, const QDBusObjectPath &sessionHandle,
        const QList<TestPortalShortcut> &shortcuts, const QString &, const QVariantMap &,
        QVariantMap &results)
    {
        ++m_state.binds;
        QList<TestPortalShortcut> &held = m_state.held(sessionHandle.path());
        held.clear();
        for (const TestPortalShortcut &shortcut : shortcuts)
            held << described(shortcut);
        results.insert(QStringLiteral("shortcuts"), QVariant::fromValue(held));
        return 0;
    }
    uint ListShortcuts(const QDBusObjectPath &, const QDBusObjectPath &sessionHandle, QVariantMap &results)
    {
        results.insert(QStringLiteral("shortcuts"), QVariant::fromValue(m_state.held(sessionHandle.path())));
        return 0;
    }
Q_SIGNALS:
    void Activated(const QDBusObjectPath &session_handle, const QString &shortcut_id, qulonglong timestamp,
        const QVariantMap &options);
    void Deactivated(const QDBusObjectPath &session_handle, const QString &shortcut_id, qulonglong timestamp,
        const QVariantMap &options);

private:
    PortalState &m_state;
    QDBusConnection m_bus;
};

class TestPortalControl : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.TestPortal")
public:
    TestPortalControl(PortalState &state, TestGlobalShortcutsAdaptor &shortcuts)
        : m_state(state)
        , m_shortcuts(shortcuts)
    {
    }

public Q_SLOTS:
    void SetPick(uint response, double red, double green, double blue)
    {
        m_state.pickResponse = response;
        m_state.red = red;
        m_state.green = green;
        m_state.blue = blue;
    }
    // The frontend relays a press to the session's owner only.
    bool Activate(const QString &shortcutId)
    {
        const QStringList held = BoundShortcuts();
        if (!held.contains(shortcutId))
            return false;
        const QDBusObjectPath session(m_state.newestSession);
        Q_EMIT m_shortcuts.Activated(session, shortcutId, 1234, {});
        Q_EMIT m_shortcuts.Deactivated(session, shortcutId, 1240, {});
        return true;
    }
    int Picks() const { return m_state.picks; }
    int Binds() const { return m_state.binds; }
    QStringList BoundShortcuts() const
    {
        QStringList ids;
        for (const TestPortalShortcut &shortcut :
            m_state.heldByToken.value(m_state.newestSession.section(u'/', -1)))
            ids << shortcut.id;
        return ids;
    }

private:
    PortalState &m_state;
    TestGlobalShortcutsAdaptor &m_shortcuts;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    qDBusRegisterMetaType<TestPortalShortcut>();
    qDBusRegisterMetaType<QList<TestPortalShortcut>>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    PortalState state;
    QObject portal;
    new TestScreenshotAdaptor(&portal, state);
    new TestAccessAdaptor(&portal);
    auto *shortcuts = new TestGlobalShortcutsAdaptor(&portal, state, bus);
    TestPortalControl control(state, *shortcuts);
    if (!bus.registerObject(portalPath, &portal, QDBusConnection::ExportAdaptors)
        || !bus.registerService(busName)
        || !bus.registerObject(
            QStringLiteral("/org/vantle/TestPortal"), &control, QDBusConnection::ExportAllSlots)) {
        QTextStream(stderr) << "portal_test_backend: cannot register on the session bus" << Qt::endl;
        return 1;
    }
    if (argc > 1) {
        QFile file(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/vantletest.portal"));
        const QByteArray text = "[portal]\nDBusName=" + busName.toLatin1()
            + "\nInterfaces=org.freedesktop.impl.portal.Screenshot;org.freedesktop.impl.portal.Access;"
              "org.freedesktop.impl.portal.GlobalShortcuts;\nUseIn=vantletest\n";
        if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
            return 1;
    }
    return app.exec();
}

#include "PortalTestBackendMain.moc"
