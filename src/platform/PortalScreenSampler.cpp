#include "platform/PortalScreenSampler.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QRandomGenerator>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString screenshotInterface = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

// Response codes of a portal Request: 0 success, 1 cancelled by the user, 2 ended otherwise.
constexpr uint responseSuccess = 0;

std::optional<SampledColor> colorFromResults(const QVariantMap &results)
{
    const QVariant value = results.value(QStringLiteral("color"));
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const QDBusArgument argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != u"(ddd)")
        return std::nullopt;
    SampledColor color;
    // The components as the portal sends them: doubles, never rounded to 8 bits here.
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return color;
}

} // namespace

PortalScreenSampler::PortalScreenSampler(const QDBusConnection &bus)
    : m_bus(bus)
{
}

PortalScreenSampler::~PortalScreenSampler()
{
    stopFollowing();
    if (m_isPicking)
        finish(std::nullopt);
}

QString PortalScreenSampler::requestPath(const QString &uniqueName, const QString &token)
{
    QString sender = uniqueName;
    if (sender.startsWith(u':'))
        sender.remove(0, 1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

void PortalScreenSampler::pick(ColorFormat, Completion completion)
{
    if (m_isPicking || !m_bus.isConnected()) {
        QMetaObject::invokeMethod(this, [c = std::move(completion)] { c(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    m_isPicking = true;
    m_completion = std::move(completion);
    const quint64 pickNumber = ++m_pickNumber;
    // Letters, digits and underscores only: the token becomes an element of an object path.
    const QString token = QStringLiteral("vantle_%1_%2").arg(pickNumber).arg(QRandomGenerator::global()->generate());
    follow(requestPath(m_bus.baseService(), token));

    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath, screenshotInterface,
                                                       QStringLiteral("PickColor"));
    call << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, pickNumber](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        if (!m_isPicking || pickNumber != m_pickNumber)
            return; // the Response came first and ended this pick already
        const QDBusPendingReply<QDBusObjectPath> reply = *w;
        if (reply.isError()) {
            finish(std::nullopt);
            return;
        }
        const QString handle = reply.value().path();
        if (handle != m_followedPath)
            follow(handle);
    });
}

void PortalScreenSampler::follow(const QString &path)
{
    m_followedPath = path;
    if (m_isSubscribed)
        return;
    // Every Request's Response from the portal, filtered by path on arrival: a subscription
    // made only once the reply names another handle would miss a Response sent right after it.
    m_isSubscribed = m_bus.connect(portalService, QString(), requestInterface, QStringLiteral("Response"), this,
                                   SLOT(handleResponse(uint, QVariantMap)));
}

void PortalScreenSampler::stopFollowing()
{
    m_followedPath.clear();
    if (!m_isSubscribed)
        return;
    m_bus.disconnect(portalService, QString(), requestInterface, QStringLiteral("Response"), this,
                     SLOT(handleResponse(uint, QVariantMap)));
    m_isSubscribed = false;
}

void PortalScreenSampler::handleResponse(uint response, const QVariantMap &results)
{
    if (!m_isPicking || message().path() != m_followedPath)
        return;
    finish(response == responseSuccess ? colorFromResults(results) : std::nullopt);
}

void PortalScreenSampler::finish(std::optional<SampledColor> result)
{
    stopFollowing();
    m_isPicking = false;
    Completion completion = std::move(m_completion);
    m_completion = nullptr;
    completion(result);
}
