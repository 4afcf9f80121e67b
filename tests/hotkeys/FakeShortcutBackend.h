// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <QList>
#include <QString>

// Records what the manager asks of the desktop, in order.
class FakeShortcutBackend final : public GlobalShortcutBackend {
    Q_OBJECT
public:
    using GlobalShortcutBackend::GlobalShortcutBackend;

    void registerShortcut(const GlobalShortcut &shortcut) override
    {
        calls << QStringLiteral("register %1 %2 %3")
                     .arg(shortcut.id)
                     .arg(shortcut.keyCode)
                     .arg(shortcut.modifiers);
        registered << shortcut;
    }
    void unregisterShortcut(int id) override
    {
        calls << QStringLiteral("unregister %1").arg(id);
        registered.removeIf([id](const GlobalShortcut &s) { return s.id == id; });
    }
    void press(int id) { Q_EMIT activated(id); }

    QStringList calls;
    QList<GlobalShortcut> registered;
};
