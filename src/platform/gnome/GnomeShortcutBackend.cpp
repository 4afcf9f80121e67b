// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/gnome/GnomeShortcutBackend.h"

#include "platform/gnome/GnomeCustomShortcuts.h"
#include "platform/portal/PortalShortcutBackend.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lcBackends, "vantle.backends", QtWarningMsg)
}

GnomeShortcutBackend::GnomeShortcutBackend(
    const QDBusConnection &bus, const QString &programPath, QObject *parent)
    : GlobalShortcutBackend(parent)
{
    // GNOME 43 has no GlobalShortcuts portal; a later GNOME may. The frontend's own property
    // says which, without a session or a question to the person.
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    call << QStringLiteral("org.freedesktop.portal.GlobalShortcuts") << QStringLiteral("version");
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, bus, programPath](auto *finished) {
        finished->deleteLater();
        if (!QDBusPendingReply<QDBusVariant>(*finished).isError()) {
            qCInfo(lcBackends) << "shortcuts: the desktop's GlobalShortcuts portal";
            m_isKeptByDesktop = false;
            use(std::make_unique<PortalShortcutBackend>(bus));
        } else {
            qCInfo(lcBackends) << "shortcuts: GNOME's custom keyboard shortcuts (no GlobalShortcuts portal)";
            use(std::make_unique<GnomeCustomShortcuts>(programPath));
        }
    });
}

GnomeShortcutBackend::~GnomeShortcutBackend() = default;

void GnomeShortcutBackend::use(std::unique_ptr<GlobalShortcutBackend> backend)
{
    m_backend = std::move(backend);
    connect(m_backend.get(), &GlobalShortcutBackend::activated, this, &GlobalShortcutBackend::activated);
    for (const GlobalShortcut &shortcut : std::as_const(m_pending))
        m_backend->registerShortcut(shortcut);
    m_pending.clear();
}

void GnomeShortcutBackend::registerShortcut(const GlobalShortcut &shortcut)
{
    if (m_backend)
        m_backend->registerShortcut(shortcut);
    else
        m_pending.insert(shortcut.id, shortcut);
}

void GnomeShortcutBackend::unregisterShortcut(int id)
{
    if (m_backend)
        m_backend->unregisterShortcut(id);
    else
        m_pending.remove(id);
}
