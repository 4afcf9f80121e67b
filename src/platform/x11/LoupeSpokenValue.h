// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <optional>

// What a screen reader hears of the loupe. The loupe draws on a window of its own, not a Qt
// one: what a screen reader reads of it is an object of the application, a notification named
// by the loupe's value, made on the first pick a screen reader follows.
class LoupeSpokenValue {
public:
    LoupeSpokenValue();
    ~LoupeSpokenValue();

    LoupeSpokenValue(const LoupeSpokenValue &) = delete;
    LoupeSpokenValue &operator=(const LoupeSpokenValue &) = delete;

    // The value under the hotspot; an empty one once the loupe closes.
    void speak(const QString &value);

private:
    void publish();

    QPointer<QObject> m_object;
    std::optional<QString> m_unspoken; // not yet published
    QTimer m_refresh;
};
