#pragma once

#include "history/ScreenColorSampler.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

// The desktop's own colour picker through the XDG desktop portal (Wayland, where no client may
// read the screen, and any desktop that offers it): org.freedesktop.portal.Screenshot.PickColor.
//
// The portal answers through a Request object: we listen before calling and accept the Response
// of the request path we can predict, because it may arrive before the method's reply; when the
// reply names another path (older portals), we follow that one instead. Everything is asynchronous: a missing
// portal or an error ends the pick with nothing, quietly, as a cancel does.
class PortalScreenSampler : public QObject, public ScreenColorSampler, protected QDBusContext {
    Q_OBJECT
public:
    explicit PortalScreenSampler(const QDBusConnection &bus);
    ~PortalScreenSampler() override;

    void pick(ColorFormat labelFormat, Completion completion) override;

    // The request path the portal will use for `token` on a connection named `uniqueName`.
    static QString requestPath(const QString &uniqueName, const QString &token);

private Q_SLOTS:
    // Connected by name: QtDBus signal subscriptions take a slot signature.
    void handleResponse(uint response, const QVariantMap &results);

private:
    void follow(const QString &path);
    void stopFollowing();
    void finish(std::optional<SampledColor> result);

    QDBusConnection m_bus;
    Completion m_completion;
    bool m_isPicking = false;
    quint64 m_pickNumber = 0;
    QString m_followedPath;
    bool m_isSubscribed = false;
};
