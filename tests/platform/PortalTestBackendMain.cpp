// SPDX-License-Identifier: GPL-3.0-or-later
// The test portal backend as a program of its own, for desktop tests where Vantle runs as a
// separate process: it serves the backend interfaces under its bus name and takes orders from
// the test script through org.vantle.TestPortal at /org/vantle/TestPortal (dbus-send):
//   SetPick(u response, d red, d green, d blue)   the answer to the next picks
//   Activate(s shortcutId) -> b                   press a shortcut of the newest session
//   Picks() -> i, BoundShortcuts() -> as          what the frontend asked for so far
#include "TestPortalBackend.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <QTextStream>

class TestPortalControl : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.TestPortal")
public:
    explicit TestPortalControl(TestPortalBackend &backend)
        : m_backend(backend)
    {
    }

public Q_SLOTS:
    void SetPick(uint response, double red, double green, double blue)
    {
        m_backend.pickResponse = response;
        m_backend.pickRed = red;
        m_backend.pickGreen = green;
        m_backend.pickBlue = blue;
    }

    bool Activate(const QString &shortcutId)
    {
        if (m_backend.boundSessions.isEmpty())
            return false;
        m_backend.activate(m_backend.boundSessions.last(), shortcutId);
        return true;
    }

    int Picks() const { return m_backend.picks; }

    QStringList BoundShortcuts() const
    {
        QStringList ids;
        if (!m_backend.binds.isEmpty()) {
            for (const TestPortalShortcut &shortcut : m_backend.binds.last())
                ids << shortcut.id;
        }
        return ids;
    }

private:
    TestPortalBackend &m_backend;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    TestPortalBackend backend(bus);
    TestPortalControl control(backend);
    if (!backend.isRegistered()
        || !bus.registerObject(
            QStringLiteral("/org/vantle/TestPortal"), &control, QDBusConnection::ExportAllSlots)) {
        QTextStream(stderr) << "portal_test_backend: cannot register on the session bus" << Qt::endl;
        return 1;
    }
    if (argc > 1) {
        // portal_test_backend DIR: write the .portal file the frontend is to read from DIR.
        QFile file(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/vantletest.portal"));
        if (!file.open(QIODevice::WriteOnly) || file.write(TestPortalBackend::portalFile()) < 0)
            return 1;
    }
    return app.exec();
}

#include "PortalTestBackendMain.moc"
