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
    if (!m_sessionHandle.isEmpty()) {
        m_bus.asyncCall(QDBusMessage::createMethodCall(
            portalService, m_sessionHandle, sessionInterface, QStringLiteral("Close")));
    }
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
    const QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("CreateSession"));
    const QVariantMap options { { QStringLiteral("session_handle_token"), PortalRequest::newToken() } };
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
        bind();
    });
}

void PortalShortcutBackend::bind()
{
    if (m_shortcuts.isEmpty() && !m_isBound)
        return;
    QList<PortalShortcut> shortcuts;
    for (const GlobalShortcut &shortcut : std::as_const(m_shortcuts)) {
        QVariantMap properties { { QStringLiteral("description"), shortcut.description } };
        const QString trigger = KeyCodes::portalTrigger(shortcut.keyCode, shortcut.modifiers);
        if (!trigger.isEmpty())
            properties.insert(QStringLiteral("preferred_trigger"), trigger);
        shortcuts << PortalShortcut { shortcut.name, properties };
    }

    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, shortcutsInterface, QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath(m_sessionHandle)) << QVariant::fromValue(shortcuts)
         << QString();
    // What the desktop finally bound is its business; presses arrive as Activated either way.
    PortalRequest::send(m_bus, call, {}, this, [](const PortalRequest::Result &) {});
    m_isBound = true;
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
