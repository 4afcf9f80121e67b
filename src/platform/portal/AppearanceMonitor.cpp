// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/AppearanceMonitor.h"

#include "platform/portal/PortalSignals.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QPalette>

namespace {

const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceNamespace = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");
const QString contrastKey = QStringLiteral("contrast");
const QString gnomeAccessibilityNamespace = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString gnomeHighContrastKey = QStringLiteral("high-contrast");

// Read() wraps the value in two variants (the method returns a variant, holding the setting's
// own variant); SettingChanged delivers one. Unwrap as many as there are.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

uint schemeFrom(const QVariant &value)
{
    bool ok = false;
    const uint scheme = value.toUInt(&ok);
    return ok && scheme <= 2 ? scheme : 0;
}

} // namespace

AppearanceMonitor::AppearanceMonitor(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    m_themeHighContrast = qEnvironmentVariable("GTK_THEME").contains(u"HighContrast", Qt::CaseInsensitive);
    // The portal's answers come in later anyway; subscribing (a few calls the bus answers at once)
    // waits for the event loop too, so the start does not wait for it.
    QMetaObject::invokeMethod(this, &AppearanceMonitor::followPortal, Qt::QueuedConnection);
}

void AppearanceMonitor::followPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    connect(new PortalSettingsSignals(bus, this), &PortalSettingsSignals::SettingChanged, this,
        &AppearanceMonitor::onSettingChanged);
    read(appearanceNamespace, colorSchemeKey);
    read(appearanceNamespace, contrastKey);
    read(gnomeAccessibilityNamespace, gnomeHighContrastKey);
}

void AppearanceMonitor::read(const QString &nameSpace, const QString &key)
{
    QDBusMessage read = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << nameSpace << key;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, nameSpace, key](QDBusPendingCallWatcher *call) {
            call->deleteLater();
            const QDBusPendingReply<QDBusVariant> reply = *call;
            if (!reply.isError())
                apply(nameSpace, key, QVariant::fromValue(reply.value()));
        });
}

std::optional<bool> AppearanceMonitor::requestedDark() const
{
    if (m_portalScheme == 1 || m_portalScheme == 2)
        return m_portalScheme == 1;
    return std::nullopt;
}

bool AppearanceMonitor::isDark() const
{
    if (m_portalScheme == 1)
        return true;
    if (m_portalScheme == 2)
        return false;
    return QApplication::palette().color(QPalette::Window).lightnessF() < 0.5;
}

bool AppearanceMonitor::prefersHighContrast() const
{
    return m_portalContrast || m_gnomeHighContrast || m_themeHighContrast;
}

bool AppearanceMonitor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && m_portalScheme == 0)
        Q_EMIT appearanceChanged();
    return false;
}

void AppearanceMonitor::onSettingChanged(
    const QString &nameSpace, const QString &key, const QDBusVariant &value)
{
    apply(nameSpace, key, QVariant::fromValue(value));
}

void AppearanceMonitor::apply(const QString &nameSpace, const QString &key, const QVariant &wrapped)
{
    const QVariant value = unwrapped(wrapped);
    const bool wasHighContrast = prefersHighContrast();
    if (nameSpace == appearanceNamespace && key == colorSchemeKey)
        setPortalScheme(schemeFrom(value));
    else if (nameSpace == appearanceNamespace && key == contrastKey)
        m_portalContrast = value.toUInt() == 1;
    else if (nameSpace == gnomeAccessibilityNamespace && key == gnomeHighContrastKey)
        m_gnomeHighContrast = value.toBool();
    if (prefersHighContrast() != wasHighContrast)
        Q_EMIT contrastChanged();
}

void AppearanceMonitor::setPortalScheme(uint scheme)
{
    const bool wasDark = isDark();
    const std::optional<bool> wasRequested = requestedDark();
    m_portalScheme = scheme;
    // A wish that goes away changes nothing seen yet, but the windows give back the palette
    // they took for it.
    if (isDark() != wasDark || requestedDark() != wasRequested)
        Q_EMIT appearanceChanged();
}
