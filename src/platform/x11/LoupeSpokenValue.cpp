// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/LoupeSpokenValue.h"

#include <QAccessible>
#include <QCoreApplication>

#include <utility>

namespace {

// A screen reader hears the value under the pointer at most this often: each value it starts
// saying cuts off the one before, so faster would say nothing whole while the pointer moves.
constexpr int spokenValueMilliseconds = 350;

} // namespace

LoupeSpokenValue::LoupeSpokenValue()
{
    m_refresh.setInterval(spokenValueMilliseconds);
    m_refresh.setSingleShot(true);
    QObject::connect(&m_refresh, &QTimer::timeout, [this] { publish(); });
}

LoupeSpokenValue::~LoupeSpokenValue()
{
    delete m_object.data();
}

void LoupeSpokenValue::speak(const QString &value)
{
    if (!QAccessible::isActive() && !m_object)
        return;
    m_unspoken = value;
    // The first value and the last one at once, those between at most every interval: the
    // value where the pointer comes to rest is always heard.
    if (!m_refresh.isActive() || value.isEmpty())
        publish();
}

void LoupeSpokenValue::publish()
{
    if (!m_object) {
        m_object = new QObject(QCoreApplication::instance());
        m_object->setObjectName(QStringLiteral("loupeValue"));
    }
    if (!m_unspoken)
        return; // nothing new since the last one
    const QString value = *std::exchange(m_unspoken, std::nullopt);
    if (value.isEmpty()) {
        m_refresh.stop();
        if (m_object->property("text").toString().isEmpty())
            return;
        QAccessibleEvent hidden(m_object, QAccessible::ObjectHide);
        QAccessible::updateAccessibility(&hidden);
        m_object->setProperty("text", QString());
        return;
    }
    if (value == m_object->property("text").toString())
        return;
    m_object->setProperty("text", value);
    QAccessibleEvent named(m_object, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&named);
    QAccessibleEvent shown(m_object, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    m_refresh.start();
}
