// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeScreenshotPortal.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDebug>

FakeScreenshotPortal::FakeScreenshotPortal(const QString &connectionName)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName))
{
    const bool objectRegistered = m_bus.registerObject(
        QStringLiteral("/org/freedesktop/portal/desktop"), this, QDBusConnection::ExportAllSlots);
    // Each test's portal takes the name over from the one before, whose release may still be
    // on its way through the bus.
    const bool nameOwned = m_bus.interface()
                               ->registerService(QStringLiteral("org.freedesktop.portal.Desktop"),
                                   QDBusConnectionInterface::ReplaceExistingService,
                                   QDBusConnectionInterface::AllowReplacement)
                               .value()
        == QDBusConnectionInterface::ServiceRegistered;
    m_registered = objectRegistered && nameOwned;
    if (!m_registered)
        qWarning() << "fake portal:" << objectRegistered << nameOwned << m_bus.lastError().message();
}

FakeScreenshotPortal::~FakeScreenshotPortal()
{
    m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void FakeScreenshotPortal::respond(const QString &path, uint response, double r, double g, double b)
{
    QVariantMap results;
    if (response == 0) {
        QDBusArgument color;
        color.beginStructure();
        color << r << g << b;
        color.endStructure();
        results.insert(QStringLiteral("color"), QVariant::fromValue(color));
    }
    QDBusMessage signal = QDBusMessage::createSignal(
        path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
    signal << response << results;
    m_bus.send(signal);
}

QDBusObjectPath FakeScreenshotPortal::PickColor(const QString &, const QVariantMap &options)
{
    ++calls;
    lastToken = options.value(QStringLiteral("handle_token")).toString();
    QString sender = message().service().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString predicted
        = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, lastToken);
    const QDBusMessage call = message();
    setDelayedReply(true);
    switch (answer) {
    case Answer::picked:
        m_bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(predicted))));
        respond(predicted, 0, red, green, blue);
        break;
    case Answer::cancelled:
    case Answer::failed:
        m_bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(predicted))));
        respond(predicted, answer == Answer::cancelled ? 1 : 2, 0, 0, 0);
        break;
    case Answer::responseFirst:
        respond(predicted, 0, red, green, blue);
        m_bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(predicted))));
        break;
    case Answer::otherHandle: {
        const QString other = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/t0").arg(sender);
        m_bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(other))));
        respond(predicted, 0, 0.25, 0.25, 0.25); // not the request the portal named
        respond(other, 0, red, green, blue);
        break;
    }
    case Answer::error:
        m_bus.send(call.createErrorReply(QDBusError::AccessDenied, QStringLiteral("not allowed")));
        break;
    }
    return {};
}
