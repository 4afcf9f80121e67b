// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalSignals.h"

// An empty path matches the signal from every object of the portal.
PortalRequestSignals::PortalRequestSignals(const QDBusConnection &bus, QObject *parent)
    : QDBusAbstractInterface(portalService, QString(), "org.freedesktop.portal.Request", bus, parent)
{
}

// QtDBus looks a signal's parameter types up by name when something connects to it, and Qt
// registers a type's name only when its id is first asked for: until something has used
// QDBusObjectPath, say, the subscription fails and no signal would ever arrive.

PortalSettingsSignals::PortalSettingsSignals(const QDBusConnection &bus, QObject *parent)
    : QDBusAbstractInterface(portalService, portalPath, "org.freedesktop.portal.Settings", bus, parent)
{
    qRegisterMetaType<QDBusVariant>();
}

PortalShortcutSignals::PortalShortcutSignals(const QDBusConnection &bus, QObject *parent)
    : QDBusAbstractInterface(portalService, portalPath, "org.freedesktop.portal.GlobalShortcuts", bus, parent)
{
    qRegisterMetaType<QDBusObjectPath>();
}
