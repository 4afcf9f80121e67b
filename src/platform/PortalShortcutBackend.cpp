#include "platform/PortalShortcutBackend.h"

#include "hotkeys/KeyCodes.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QRandomGenerator>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");

struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace

Q_DECLARE_METATYPE(PortalShortcut)

PortalShortcutBackend::PortalShortcutBackend(const QDBusConnection &bus, QObject *parent)
    : GlobalShortcutBackend(parent)
    , m_bus(bus)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    // QtDBus looks the slot's parameter types up by name, and Qt registers a type's name only when
    // its id is first asked for: until something has used QDBusObjectPath, the subscription below
    // fails (returns false) and no press would ever arrive.
    qRegisterMetaType<QDBusObjectPath>();
    m_bus.connect(portalService, portalPath, shortcutsInterface, QStringLiteral("Activated"), this,
        SLOT(onActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    m_bus.connect(portalService, portalPath, shortcutsInterface, QStringLiteral("Deactivated"), this,
        SLOT(onDeactivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
}

PortalShortcutBackend::~PortalShortcutBackend()
{
    if (!m_sessionHandle.isEmpty()) {
        m_bus.asyncCall(QDBusMessage::createMethodCall(
            portalService, m_sessionHandle, sessionInterface, QStringLiteral("Close")));
    }
}

QString PortalShortcutBackend::nextToken()
{
    return QStringLiteral("vantle_%1_%2")
        .arg(QRandomGenerator::global()->generate())
        .arg(++m_tokenCounter);
}

QString PortalShortcutBackend::requestPath(const QString &token) const
{
    // The portal builds the Request path from our unique name (":1.42" → "1_42") and the token.
    QString sender = m_bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return portalPath + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
}

void PortalShortcutBackend::registerShortcut(const GlobalShortcut &shortcut)
{
    m_shortcuts.removeIf([&](const GlobalShortcut &s) { return s.id == shortcut.id; });
    // The first registration of a combination keeps it, as on every other desktop.
    for (const GlobalShortcut &other : std::as_const(m_shortcuts)) {
        if (other.keyCode == shortcut.keyCode && other.modifiers == shortcut.modifiers)
            return;
    }
    m_shortcuts << shortcut;
    scheduleBind();
}

void PortalShortcutBackend::unregisterShortcut(int id)
{
    if (m_shortcuts.removeIf([id](const GlobalShortcut &s) { return s.id == id; }) > 0)
        scheduleBind();
}

void PortalShortcutBackend::scheduleBind()
{
    // unregister-and-register-both arrives as several calls in a row: bind once, after them.
    if (m_state == State::Unavailable || m_isBindScheduled)
        return;
    m_isBindScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isBindScheduled = false;
            if (m_state == State::Idle && !m_shortcuts.isEmpty())
                createSession();
            else if (m_state == State::Ready)
                bind();
        },
        Qt::QueuedConnection);
}

void PortalShortcutBackend::createSession()
{
    m_state = State::Creating;
    const QString token = nextToken();
    m_pendingRequest = requestPath(token);
    m_bus.connect(portalService, m_pendingRequest, requestInterface, QStringLiteral("Response"), this,
        SLOT(onCreateSessionResponse(uint, QVariantMap)));

    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("CreateSession"));
    call << QVariantMap{{QStringLiteral("handle_token"), token},
        {QStringLiteral("session_handle_token"), nextToken()}};
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *w;
        if (reply.isError()) {
            // No portal, or one without GlobalShortcuts: stay quiet and register nothing.
            m_bus.disconnect(portalService, m_pendingRequest, requestInterface, QStringLiteral("Response"), this,
                SLOT(onCreateSessionResponse(uint, QVariantMap)));
            m_state = State::Unavailable;
            return;
        }
        const QString handle = reply.value().path();
        if (handle != m_pendingRequest && m_state == State::Creating) {
            // Older portals pick their own path: follow it.
            m_bus.disconnect(portalService, m_pendingRequest, requestInterface, QStringLiteral("Response"), this,
                SLOT(onCreateSessionResponse(uint, QVariantMap)));
            m_pendingRequest = handle;
            m_bus.connect(portalService, handle, requestInterface, QStringLiteral("Response"), this,
                SLOT(onCreateSessionResponse(uint, QVariantMap)));
        }
    });
}

void PortalShortcutBackend::onCreateSessionResponse(uint response, const QVariantMap &results)
{
    m_bus.disconnect(portalService, m_pendingRequest, requestInterface, QStringLiteral("Response"), this,
        SLOT(onCreateSessionResponse(uint, QVariantMap)));
    m_pendingRequest.clear();
    // The handle comes back as a string, although it names an object.
    const QVariant handle = results.value(QStringLiteral("session_handle"));
    if (response != 0 || !handle.isValid()) {
        m_state = State::Unavailable;
        return;
    }
    m_sessionHandle = handle.userType() == qMetaTypeId<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path()
                                                                          : handle.toString();
    m_state = State::Ready;
    bind();
}

void PortalShortcutBackend::bind()
{
    if (m_shortcuts.isEmpty() && !m_isBound)
        return;
    QList<PortalShortcut> shortcuts;
    for (const GlobalShortcut &shortcut : std::as_const(m_shortcuts)) {
        QVariantMap properties{{QStringLiteral("description"), shortcut.description}};
        const QString trigger = KeyCodes::portalTrigger(shortcut.keyCode, shortcut.modifiers);
        if (!trigger.isEmpty())
            properties.insert(QStringLiteral("preferred_trigger"), trigger);
        shortcuts << PortalShortcut{shortcut.name, properties};
    }

    const QString token = nextToken();
    const QString request = requestPath(token);
    m_bus.connect(portalService, request, requestInterface, QStringLiteral("Response"), this,
        SLOT(onBindResponse(uint, QVariantMap)));
    m_bindRequests << request;
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath(m_sessionHandle)) << QVariant::fromValue(shortcuts)
         << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
    m_bus.asyncCall(call);
    m_isBound = true;
}

void PortalShortcutBackend::onBindResponse(uint, const QVariantMap &)
{
    // What the desktop finally bound is its business; presses arrive as Activated either way.
    // Responses come in the order of the calls: drop the oldest subscription.
    if (!m_bindRequests.isEmpty()) {
        m_bus.disconnect(portalService, m_bindRequests.takeFirst(), requestInterface, QStringLiteral("Response"),
            this, SLOT(onBindResponse(uint, QVariantMap)));
    }
}

void PortalShortcutBackend::onActivated(
    const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong, const QVariantMap &)
{
    if (m_sessionHandle.isEmpty() || sessionHandle.path() != m_sessionHandle)
        return;
    if (m_heldShortcuts.contains(shortcutId))
        return; // the key is still down
    for (const GlobalShortcut &shortcut : std::as_const(m_shortcuts)) {
        if (shortcut.name == shortcutId) {
            if (m_isReportingReleases)
                m_heldShortcuts << shortcutId;
            Q_EMIT activated(shortcut.id);
            return;
        }
    }
}

void PortalShortcutBackend::onDeactivated(
    const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong, const QVariantMap &)
{
    if (m_sessionHandle.isEmpty() || sessionHandle.path() != m_sessionHandle)
        return;
    m_isReportingReleases = true;
    m_heldShortcuts.removeAll(shortcutId);
}
