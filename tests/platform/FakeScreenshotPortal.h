// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

// A stand-in for the desktop portal's frontend, owning org.freedesktop.portal.Desktop on its
// own connection to the test's private bus, answering PickColor the ways real portals do.
class FakeScreenshotPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")
public:
    enum class Answer {
        picked, // reply with the predicted handle, then Response 0 with the colour
        cancelled, // Response 1
        failed, // Response 2
        responseFirst, // Response 0 before the method's reply
        otherHandle, // reply with another handle and answer there; a decoy on the predicted one
        error, // the method fails
    };

    explicit FakeScreenshotPortal(const QString &connectionName);
    ~FakeScreenshotPortal() override;
    bool isRegistered() const { return m_registered; }

    Answer answer = Answer::picked;
    double red = 0.9999, green = 0.5, blue = 0.00196;
    QString lastToken;
    int calls = 0;

public Q_SLOTS:
    QDBusObjectPath PickColor(const QString &parentWindow, const QVariantMap &options);

private:
    void respond(const QString &path, uint response, double r, double g, double b);

    QDBusConnection m_bus;
    bool m_registered = false;
};
