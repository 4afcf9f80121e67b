// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <QList>
#include <QString>
#include <memory>

class GnomeKeybindings;

// "<Alt><Shift>c": a stored shortcut in the accelerator notation of GNOME's keyboard settings
// (modifiers in the order Ctrl, Alt, Shift, Super, then the keysym name); empty for no shortcut.
QString gnomeAccelerator(qint64 keyCode, qint64 modifiers);
// The command GNOME runs for a shortcut: this program's absolute path, quoted as a shell word
// when it holds anything but plain path characters, and the subcommand ("pick", "toggle").
QString gnomeShortcutCommand(const QString &programPath, const QString &subcommand);

// The global shortcuts as GNOME's own custom keyboard shortcuts (the media-keys plugin of
// gnome-settings-daemon), where GNOME has no GlobalShortcuts portal. Each of our shortcuts is
// one entry at a fixed path of ours (…/custom-keybindings/vantle-pick/ and vantle-toggle/)
// that runs `vantle pick` or `vantle toggle`; the running Vantle takes the request over D-Bus,
// so a press arrives as that request, not as `activated`. Only our own paths are ever added to
// or removed from the list of custom shortcuts: the person's others stay as they are.
//
// GNOME's settings are reached through the GNOME module (GnomeKeybindings). Without it, or
// without the schemas (no gnome-settings-daemon installed), nothing is registered. Entries are
// removed as their shortcuts are unregistered (at quit too, so that a press with Vantle gone
// runs no failing command), and the destructor waits until the desktop has the last change.
class GnomeCustomShortcuts final : public GlobalShortcutBackend {
    Q_OBJECT
public:
    explicit GnomeCustomShortcuts(const QString &programPath, QObject *parent = nullptr);
    ~GnomeCustomShortcuts() override;

    void registerShortcut(const GlobalShortcut &shortcut) override;
    void unregisterShortcut(int id) override;

private:
    struct Entry {
        GlobalShortcut shortcut;
        QString path;
    };
    void setListed(const QString &path, bool isListed);

    QString m_programPath;
    std::unique_ptr<GnomeKeybindings> m_settings;
    QList<Entry> m_entries;
};
