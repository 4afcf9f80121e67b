// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractAnimation>
#include <QCoreApplication>

// Drives every Qt animation of the test from a clock the test moves, in 10 ms frames, so the
// moments of a choreography can be checked exactly and without waiting.
class ManualAnimationDriver : public QAnimationDriver {
public:
    ManualAnimationDriver() { install(); }
    ~ManualAnimationDriver() override { uninstall(); }

    qint64 elapsed() const override { return m_now - m_startedAt; }

    void advanceTo(qint64 ms)
    {
        QCoreApplication::processEvents(); // animations start on a queued call
        while (m_now < ms) {
            m_now = std::min(ms, m_now + 10);
            if (isRunning())
                advance();
            QCoreApplication::processEvents();
        }
    }

protected:
    void start() override
    {
        m_startedAt = m_now;
        QAnimationDriver::start();
    }

private:
    qint64 m_now = 0;
    qint64 m_startedAt = 0;
};
