// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <QDBusConnection>
#include <QMap>
#include <memory>

// Global shortcuts on GNOME: the GlobalShortcuts portal where GNOME offers it, otherwise GNOME's
// own custom keyboard shortcuts (GnomeCustomShortcuts). The portal frontend is asked once,
// asynchronously, whether it has the interface; registrations made before the answer are kept
// and handed to the backend it chooses.
class GnomeShortcutBackend final : public GlobalShortcutBackend {
    Q_OBJECT
public:
    GnomeShortcutBackend(const QDBusConnection &bus, const QString &programPath, QObject *parent = nullptr);
    ~GnomeShortcutBackend() override;

    void registerShortcut(const GlobalShortcut &shortcut) override;
    void unregisterShortcut(int id) override;

    // Whether the shortcuts live in GNOME's keyboard settings (known once the portal answered).
    bool areShortcutsKeptByDesktop() const override { return m_isKeptByDesktop; }

private:
    void use(std::unique_ptr<GlobalShortcutBackend> backend);

    std::unique_ptr<GlobalShortcutBackend> m_backend;
    QMap<int, GlobalShortcut> m_pending;
    bool m_isKeptByDesktop = true;
};
