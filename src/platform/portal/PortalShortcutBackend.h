// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// Global shortcuts through the desktop's org.freedesktop.portal.GlobalShortcuts portal (the
// only way on Wayland). The session always has the same token ("vantle"): desktops that keep a
// session's shortcuts under its token (Plasma 5.27 names the group after it) give a restarted
// Vantle back the keys of the previous run instead of a fresh group without keys.
//
// Every set of shortcuts goes to the desktop twice over: in CreateSession's `shortcuts` option,
// the only list Plasma 5.27 reads, and in BindShortcuts, which later desktops read. Binding may
// open the desktop's shortcut settings (Plasma 5.27 does, every time), so it happens only when
// ListShortcuts shows that the desktop lacks one of ours or holds another trigger for it. A
// change of the set closes the session and creates it again with the new list. The desktop
// decides the real trigger (it may ask the user); a press arrives as `Activated` for our
// session and shortcut id.
//
// Every call is asynchronous (a PortalRequest) and no event loop is nested. Where the portal is
// missing or refuses, nothing is registered and nothing is reported.
class PortalShortcutBackend final : public GlobalShortcutBackend {
    Q_OBJECT
public:
    explicit PortalShortcutBackend(const QDBusConnection &bus, QObject *parent = nullptr);
    ~PortalShortcutBackend() override;

    void registerShortcut(const GlobalShortcut &shortcut) override;
    void unregisterShortcut(int id) override;

    // The session's handle once the portal created it; empty before and when unavailable.
    QString sessionHandle() const { return m_sessionHandle; }

private:
    void onActivated(const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong timestamp,
        const QVariantMap &options);
    void onDeactivated(const QDBusObjectPath &sessionHandle, const QString &shortcutId, qulonglong timestamp,
        const QVariantMap &options);

    enum class State { Idle, Creating, Ready, Unavailable };

    void createSession();
    void closeSession();
    void scheduleUpdate();
    void bindIfMissing(const QVariantMap &listed);
    void bind();

    QDBusConnection m_bus;
    State m_state = State::Idle;
    QList<GlobalShortcut> m_shortcuts;
    QString m_sessionHandle;
    bool m_isUpdateScheduled = false;
    // The set changed while the session was being created: create it again once that is done.
    bool m_isStale = false;
    // Shortcuts whose keys are down: a desktop that repeats Activated while a key is held
    // fires once. Only once the desktop has shown that it reports releases, since one that
    // never sends Deactivated would otherwise fire only the first time.
    QStringList m_heldShortcuts;
    bool m_isReportingReleases = false;
};
