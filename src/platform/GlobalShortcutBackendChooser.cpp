#include "platform/GlobalShortcutBackendChooser.h"

#include "platform/PortalShortcutBackend.h"
#include "platform/XcbShortcutBackend.h"

#include <QDBusConnection>
#include <QGuiApplication>

std::unique_ptr<GlobalShortcutBackend> createGlobalShortcutBackend(QObject *parent)
{
    QString choice = qEnvironmentVariable("VANTLE_SHORTCUTS").toLower();
    if (choice.isEmpty()) {
        const QString platform = QGuiApplication::platformName();
        if (platform == QLatin1String("xcb"))
            choice = QStringLiteral("x11");
        else if (platform.startsWith(QLatin1String("wayland")))
            choice = QStringLiteral("portal");
    }

    if (choice == QLatin1String("x11")) {
        if (auto backend = XcbShortcutBackend::create(parent))
            return backend;
    } else if (choice == QLatin1String("portal")) {
        const QDBusConnection bus = QDBusConnection::sessionBus();
        if (bus.isConnected())
            return std::make_unique<PortalShortcutBackend>(bus, parent);
    }
    return std::make_unique<NullShortcutBackend>(parent);
}
