// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

class QDBusServiceWatcher;
class QTimer;

// Decides when the tray icon can be made. Qt settles once per process whether a
// StatusNotifier host exists, so asking it before the panel is up (Vantle starting at login
// first) would leave Vantle without a tray for the whole session. TrayHost looks for a host
// itself: a StatusNotifier watcher on the session bus, or an X11 system tray (XEmbed). When
// neither is there yet it waits, driven by the bus's name signals and the tray's MANAGER
// announcement on the X root window; after a bounded time it says so, and goes on listening:
// a panel that comes up later still gets the icon.
class TrayHost : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT
public:
    explicit TrayHost(QObject *parent = nullptr);
    ~TrayHost() override;

    // Emits `available` as soon as a host exists (within this call when there is one already),
    // or `unavailable` once `waitMs` passed without one, and then `available` if a host appears
    // later. Each fires at most once; nothing is watched once a host was found.
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
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void watchForXembedTray();
    void found();

    QTimer *m_timeout = nullptr;
    QDBusServiceWatcher *m_watcher = nullptr;
    bool m_found = false;
    quint32 m_managerAtom = 0; // the X atoms of a tray's announcement, while watching for one
    quint32 m_traySelection = 0;
};
