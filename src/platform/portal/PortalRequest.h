// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <functional>

class PortalRequestSignals;

// One call of a portal method that answers later through a Request object
// (org.freedesktop.portal.Request): PickColor, CreateSession, BindShortcuts.
//
// The portal names the Request after our unique bus name and a token we choose, and may send
// its Response before the method's reply arrives: the Response is listened for before the call
// is sent, and the predicted handle is accepted from the start. When the reply names another
// handle (older portals), that one is followed instead. The completion runs exactly once, never
// inside `send`; a request destroyed before then (with its parent) drops it unrun.
class PortalRequest final : public QObject {
    Q_OBJECT
public:
    // The portal's response codes; a failed call (no portal, no such method) reports `ended`.
    enum class Response : uint { success = 0, cancelled = 1, ended = 2 };
    struct Result {
        Response response = Response::ended;
        QVariantMap results;
    };
    using Completion = std::function<void(const Result &)>;

    // Sends `call` with `options` and a fresh handle_token appended as its last argument, the
    // options vardict every Request-returning portal method ends with.
    static PortalRequest *send(const QDBusConnection &bus, QDBusMessage call, QVariantMap options,
        QObject *parent, Completion completion);

    // The Request path the portal uses for `token` on a connection named `uniqueName` (":1.42").
    static QString handlePath(const QString &uniqueName, const QString &token);

    // A token fit for an object path element: letters, digits and underscores only.
    static QString newToken();

private:
    PortalRequest(QObject *parent, Completion completion);
    void finish(const Result &result);

    PortalRequestSignals *m_signals = nullptr;
    QString m_handle;
    Completion m_completion;
};
