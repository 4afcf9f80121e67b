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
// only way on Wayland). One session is created on the first registration; every change binds
// the whole current set again, with the stored shortcut as the preferred trigger. The desktop
// decides the real trigger (it may ask the user), so a press arrives as `Activated` for our
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
    void scheduleBind();
    void bind();

    QDBusConnection m_bus;
    State m_state = State::Idle;
    QList<GlobalShortcut> m_shortcuts;
    QString m_sessionHandle;
    bool m_isBindScheduled = false;
    bool m_isBound = false;
    // Shortcuts whose keys are down: a desktop that repeats Activated while a key is held
    // fires once. Only once the desktop has shown that it reports releases, since one that
    // never sends Deactivated would otherwise fire only the first time.
    QStringList m_heldShortcuts;
    bool m_isReportingReleases = false;
};
