// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <memory>

class LocalRequestListener;

// Makes Vantle a single instance per user session and takes requests from other processes
// (`vantle pick`, `vantle toggle`, a second `vantle` start; InstanceClient.h sends them).
//
// On the session bus it owns the well-known name io.github.vantle.Vantle (claimed atomically,
// so of two instances started at once exactly one wins) and serves Pick and TogglePopover.
// Without a session bus it takes the instance lock and listens on a local socket in
// $XDG_RUNTIME_DIR, readable by this user only: a socket left behind by a crashed instance is
// removed, a live one respected, and two starts at the same instant cannot both take over.
// Requests arrive as signals on the main thread.
class InstanceServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "io.github.vantle.Vantle")
public:
    // The server when this process is the first Vantle of the session; null when another one
    // already runs.
    static std::unique_ptr<InstanceServer> claim();
    ~InstanceServer() override;

public Q_SLOTS:
    Q_SCRIPTABLE void Pick();
    Q_SCRIPTABLE void TogglePopover();

Q_SIGNALS:
    void pickRequested();
    void togglePopoverRequested();

private:
    InstanceServer() = default;
    void handleRequest(const QByteArray &request);

    std::unique_ptr<LocalRequestListener> m_listener;
    int m_lockFd = -1;
    bool m_ownsBusName = false;
};
