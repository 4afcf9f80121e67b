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

// Read() wraps the value in two variants (the method returns a variant, holding the setting's
// own variant); SettingChanged delivers one. Unwrap as many as there are.
uint schemeFrom(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    bool ok = false;
    const uint scheme = value.toUInt(&ok);
    return ok && scheme <= 2 ? scheme : 0;
}

} // namespace

AppearanceMonitor::AppearanceMonitor(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    connect(new PortalSettingsSignals(bus, this), &PortalSettingsSignals::SettingChanged, this,
        &AppearanceMonitor::onSettingChanged);
    QDBusMessage read = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << appearanceNamespace << colorSchemeKey;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (!reply.isError())
            setPortalScheme(schemeFrom(QVariant::fromValue(reply.value())));
    });
}

bool AppearanceMonitor::isDark() const
{
    if (m_portalScheme == 1)
        return true;
    if (m_portalScheme == 2)
        return false;
    return QApplication::palette().color(QPalette::Window).lightnessF() < 0.5;
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
    if (nameSpace == appearanceNamespace && key == colorSchemeKey)
        setPortalScheme(schemeFrom(QVariant::fromValue(value)));
}

void AppearanceMonitor::setPortalScheme(uint scheme)
{
    const bool wasDark = isDark();
    m_portalScheme = scheme;
    if (isDark() != wasDark)
        Q_EMIT appearanceChanged();
}
