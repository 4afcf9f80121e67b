// SPDX-License-Identifier: GPL-3.0-or-later
// The portal client against a stand-in portal on a private session bus (dbus-run-session): the
// orders of replies and signals that real portals produce, which the real frontend cannot be
// made to show on demand.
#include "platform/portal/PortalScreenSampler.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

// Owns org.freedesktop.portal.Desktop on its own connection and answers PickColor the ways real
// portals do.
class FakeScreenshotPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")
public:
    enum class Answer {
        picked, // reply with the predicted handle, then Response 0 with the colour
        cancelled, // Response 1
        failed, // Response 2
        responseFirst, // Response 0 before the method's reply
        otherHandle, // reply with another handle and answer there; a decoy on the predicted one
        error, // the method fails
    };

    explicit FakeScreenshotPortal(const QString &connectionName)
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName))
    {
        // Each test's portal takes the name over from the one before, whose release may still be
        // on its way through the bus.
        m_registered = m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                           QDBusConnection::ExportAllSlots)
            && m_bus.interface()
                    ->registerService(QStringLiteral("org.freedesktop.portal.Desktop"),
                        QDBusConnectionInterface::ReplaceExistingService,
                        QDBusConnectionInterface::AllowReplacement)
                    .value()
                == QDBusConnectionInterface::ServiceRegistered;
    }
    ~FakeScreenshotPortal() override
    {
        m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        QDBusConnection::disconnectFromBus(m_bus.name());
    }
    bool isRegistered() const { return m_registered; }

    Answer answer = Answer::picked;
    QString lastToken;
    int calls = 0;

public Q_SLOTS:
    QDBusObjectPath PickColor(const QString &, const QVariantMap &options)
    {
        ++calls;
        lastToken = options.value(QStringLiteral("handle_token")).toString();
        QString sender = message().service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        const QString request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/").arg(sender);
        const QString predicted = request + lastToken;
        const QDBusMessage call = message();
        const auto reply = [&](const QString &path) {
            m_bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        };
        setDelayedReply(true);
        switch (answer) {
        case Answer::picked:
        case Answer::cancelled:
        case Answer::failed:
            reply(predicted);
            respond(predicted, answer == Answer::picked ? 0 : answer == Answer::cancelled ? 1 : 2);
            break;
        case Answer::responseFirst:
            respond(predicted, 0);
            reply(predicted);
            break;
        case Answer::otherHandle:
            reply(request + QStringLiteral("t0"));
            respond(predicted, 0, 0.25); // not the request the portal named
            respond(request + QStringLiteral("t0"), 0);
            break;
        case Answer::error:
            m_bus.send(call.createErrorReply(QDBusError::AccessDenied, QStringLiteral("not allowed")));
            break;
        }
        return {};
    }

private:
    void respond(const QString &path, uint response, double decoy = -1)
    {
        QVariantMap results;
        if (response == 0) {
            QDBusArgument color;
            color.beginStructure();
            if (decoy >= 0)
                color << decoy << decoy << decoy;
            else
                color << 0.9999 << 0.5 << 0.00196;
            color.endStructure();
            results.insert(QStringLiteral("color"), QVariant::fromValue(color));
        }
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        signal << response << results;
        m_bus.send(signal);
    }

    QDBusConnection m_bus;
    bool m_registered = false;
};

namespace {

struct PickOutcome {
    int calls = 0;
    bool ranInsidePick = false;
    std::optional<SampledColor> color;
};

PickOutcome pickOnce(PortalScreenSampler &sampler)
{
    PickOutcome outcome;
    bool insidePick = true;
    sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor> color) {
        ++outcome.calls;
        outcome.ranInsidePick = insidePick;
        outcome.color = color;
    });
    insidePick = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.calls > 0; }, 10000));
    QTest::qWait(50); // room for a second, wrong completion to show
    return outcome;
}

} // namespace

TEST(PortalScreenSampler, AnswersOfThePortal)
{
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";
    FakeScreenshotPortal portal(QStringLiteral("fake-portal"));
    ASSERT_TRUE(portal.isRegistered());
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    using Answer = FakeScreenshotPortal::Answer;
    struct Case {
        Answer answer;
        bool picks;
        const char *what;
    } cases[] = {
        { Answer::picked, true, "picked" },
        { Answer::cancelled, false, "cancelled by the user" },
        { Answer::failed, false, "ended by the portal" },
        { Answer::responseFirst, true, "Response before the method's reply" },
        { Answer::otherHandle, true, "another handle returned" },
        { Answer::error, false, "the method failed" },
        { Answer::picked, true, "picked again after a failure" },
    };
    for (const Case &c : cases) {
        portal.answer = c.answer;
        const PickOutcome outcome = pickOnce(sampler);
        EXPECT_EQ(outcome.calls, 1) << c.what;
        EXPECT_FALSE(outcome.ranInsidePick) << c.what;
        ASSERT_EQ(outcome.color.has_value(), c.picks) << c.what;
        if (c.picks) {
            // Exactly the doubles the portal sent: nothing rounded to 8 bits on the way.
            EXPECT_EQ(outcome.color->red, 0.9999) << c.what;
            EXPECT_EQ(outcome.color->green, 0.5) << c.what;
            EXPECT_EQ(outcome.color->blue, 0.00196) << c.what;
            EXPECT_EQ(outcome.color->alpha, 1.0) << c.what;
        }
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[A-Za-z0-9_]+$")).match(portal.lastToken).hasMatch())
            << portal.lastToken.toStdString();
    }
    EXPECT_EQ(portal.calls, int(std::size(cases)));
}

TEST(PortalScreenSampler, NoPortalEndsWithNothingQuietly)
{
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected()) << "run under dbus-run-session";
    PortalScreenSampler sampler(QDBusConnection::sessionBus());
    const PickOutcome outcome = pickOnce(sampler);
    EXPECT_EQ(outcome.calls, 1);
    EXPECT_FALSE(outcome.ranInsidePick);
    EXPECT_FALSE(outcome.color);
}

#include "PortalScreenSamplerTest.moc"
