// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalShortcutBackend.h"

#include "hotkeys/KeyCodes.h"

#include "platform/portal/PortalRequest.h"
#include "platform/portal/PortalSignals.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>

namespace {

const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
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

QList<PortalShortcut> portalShortcuts(const QList<GlobalShortcut> &wanted)
{
    QList<PortalShortcut> shortcuts;
    for (const GlobalShortcut &shortcut : wanted) {
        QVariantMap properties { { QStringLiteral("description"), shortcut.description } };
        const QString trigger = KeyCodes::portalTrigger(shortcut.keyCode, shortcut.modifiers);
        if (!trigger.isEmpty())
            properties.insert(QStringLiteral("preferred_trigger"), trigger);
        shortcuts << PortalShortcut { shortcut.name, properties };
    }
    return shortcuts;
}

// A trigger as a set of key names: desktops spell it back in their own case and order
// ("Shift+Alt+C" for "ALT+SHIFT+c").
QStringList triggerKeys(const QString &trigger)
{
    QStringList keys = trigger.toLower().remove(u' ').split(u'+', Qt::SkipEmptyParts);
    keys.sort();
    return keys;
}

} // namespace

Q_DECLARE_METATYPE(PortalShortcut)

PortalShortcutBackend::PortalShortcutBackend(const QDBusConnection &bus, QObject *parent)
    : GlobalShortcutBackend(parent)
    , m_bus(bus)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    auto *shortcutSignals = new PortalShortcutSignals(m_bus, this);
    connect(shortcutSignals, &PortalShortcutSignals::Activated, this, &PortalShortcutBackend::onActivated);
    connect(
        shortcutSignals, &PortalShortcutSignals::Deactivated, this, &PortalShortcutBackend::onDeactivated);
}

PortalShortcutBackend::~PortalShortcutBackend()
{
    closeSession();
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
    scheduleUpdate();
}

void PortalShortcutBackend::unregisterShortcut(int id)
{
    if (m_shortcuts.removeIf([id](const GlobalShortcut &s) { return s.id == id; }) > 0)
        scheduleUpdate();
}

void PortalShortcutBackend::scheduleUpdate()
{
    // unregister-and-register-both arrives as several calls in a row: update once, after them.
    if (m_state == State::Unavailable || m_isUpdateScheduled)
        return;
    m_isUpdateScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isUpdateScheduled = false;
            if (m_state == State::Creating) {
                m_isStale = true;
                return;
            }
            closeSession();
            if (!m_shortcuts.isEmpty())
                createSession();
        },
        Qt::QueuedConnection);
}

void PortalShortcutBackend::createSession()
{
    m_state = State::Creating;
    m_isStale = false;
    const QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("CreateSession"));
    const QVariantMap options { { QStringLiteral("session_handle_token"), QStringLiteral("vantle") },
        { QStringLiteral("shortcuts"), QVariant::fromValue(portalShortcuts(m_shortcuts)) } };
    PortalRequest::send(m_bus, call, options, this, [this](const PortalRequest::Result &result) {
        // The handle comes back as a string, although it names an object.
        const QVariant handle = result.results.value(QStringLiteral("session_handle"));
        if (result.response != PortalRequest::Response::success || !handle.isValid()) {
            // No portal, one without GlobalShortcuts, or a refusal: stay quiet and register nothing.
            m_state = State::Unavailable;
            return;
        }
        m_sessionHandle = handle.userType() == qMetaTypeId<QDBusObjectPath>()
            ? handle.value<QDBusObjectPath>().path()
            : handle.toString();
        m_state = State::Ready;
        if (m_isStale) {
            scheduleUpdate();
            return;
        }
        QDBusMessage list = QDBusMessage::createMethodCall(
            portalService, portalPath, shortcutsInterface, QStringLiteral("ListShortcuts"));
        list << QVariant::fromValue(QDBusObjectPath(m_sessionHandle));
        const QString session = m_sessionHandle;
        PortalRequest::send(m_bus, list, {}, this, [this, session](const PortalRequest::Result &listed) {
            if (session == m_sessionHandle)
                bindIfMissing(listed.results);
        });
    });
}

void PortalShortcutBackend::closeSession()
{
    if (m_sessionHandle.isEmpty())
        return;
    m_bus.asyncCall(QDBusMessage::createMethodCall(
        portalService, m_sessionHandle, sessionInterface, QStringLiteral("Close")));
    m_sessionHandle.clear();
    m_state = State::Idle;
}

void PortalShortcutBackend::bindIfMissing(const QVariantMap &listed)
{
    QList<PortalShortcut> held;
    const QVariant shortcuts = listed.value(QStringLiteral("shortcuts"));
    if (shortcuts.canConvert<QDBusArgument>())
        shortcuts.value<QDBusArgument>() >> held;
    const QList<PortalShortcut> wanted = portalShortcuts(m_shortcuts);
    bool isComplete = held.size() == wanted.size();
    for (const PortalShortcut &shortcut : wanted) {
        const auto found = std::find_if(
            held.cbegin(), held.cend(), [&](const PortalShortcut &h) { return h.id == shortcut.id; });
        const QString trigger = shortcut.properties.value(QStringLiteral("preferred_trigger")).toString();
        isComplete = isComplete && found != held.cend()
            && triggerKeys(found->properties.value(QStringLiteral("trigger_description")).toString())
                == triggerKeys(trigger);
    }
    if (!isComplete)
        bind();
}

void PortalShortcutBackend::bind()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath(m_sessionHandle))
         << QVariant::fromValue(portalShortcuts(m_shortcuts)) << QString();
    // What the desktop finally bound is its business; presses arrive as Activated either way.
    PortalRequest::send(m_bus, call, {}, this, [](const PortalRequest::Result &) {});
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
