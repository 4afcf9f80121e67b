// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QTimer;

// Decides when the tray icon can be made. Qt settles once per process whether a
// StatusNotifier host exists, so asking it before the panel is up (Vantle starting at login
// first) would leave Vantle without a tray for the whole session. TrayHost looks for a host
// itself: a StatusNotifier watcher on the session bus, or an X11 system tray (XEmbed). When
// neither is there yet it waits, driven by the bus's name signals, for a bounded time.
class TrayHost : public QObject {
    Q_OBJECT
public:
    explicit TrayHost(QObject *parent = nullptr);

    // Emits `available` as soon as a host exists (within this call when there is one already)
    // or `unavailable` once `waitMs` passed without one. Exactly one of them fires.
    void waitForHost(int waitMs);

    static bool statusNotifierHostExists();
    static bool xembedTrayExists();

    // Sends what the tray icon asked of the X server (its dock request) now, rather than when
    // the launch gives the event loop its turn: the tray docks it meanwhile.
    static void sendPendingRequests();

Q_SIGNALS:
    void available();
    void unavailable();

private:
    void settle(bool found);

    QTimer *m_timeout = nullptr;
    bool m_settled = false;
};
