// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// One system-wide shortcut as a backend registers it.
struct GlobalShortcut {
    int id = 0; // reported back by `activated`
    QString name; // stable identifier for desktops that keep shortcuts by name ("pick")
    QString description; // what the desktop shows next to it ("Pick a color")
    quint32 keyCode = 0; // stored key code (hotkeys/KeyCodes.h)
    qint64 modifiers = 0; // stored modifier flags; bits other than the four are ignored
};

// The desktop facility behind the global shortcuts (X key grabs, the GlobalShortcuts portal,
// or nothing).
//
// Guarantees of every backend:
// - Everything happens on the main thread; `activated` is emitted from the event loop, never
//   from inside registerShortcut().
// - One physical press emits `activated` once, however long the key is held.
// - A registration the desktop refuses (the combination belongs to another program) is not
//   reported: the shortcut simply never fires. It does not disturb the other shortcuts.
// - When two registrations use the same combination, the first one registered keeps it.
// - unregisterShortcut() releases the combination at once; an unknown id is ignored.
// - Nothing runs while waiting for a press: no timers, no polling.
class GlobalShortcutBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void registerShortcut(const GlobalShortcut &shortcut) = 0;
    virtual void unregisterShortcut(int id) = 0;
    // Whether the desktop keeps the shortcuts among its own keyboard settings (GNOME's custom
    // shortcuts), where the person also sees and changes them.
    virtual bool areShortcutsKeptByDesktop() const { return false; }

Q_SIGNALS:
    void activated(int id);
};

// For desktops without a global shortcut facility: registers nothing, never fires.
class NullShortcutBackend final : public GlobalShortcutBackend {
    Q_OBJECT
public:
    using GlobalShortcutBackend::GlobalShortcutBackend;
    void registerShortcut(const GlobalShortcut &) override { }
    void unregisterShortcut(int) override { }
};
