// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// GNOME's keyboard settings as the custom shortcuts use them (GSettings, the media-keys plugin of
// gnome-settings-daemon): the list of custom shortcut paths, and each entry's name, command and
// binding. It lives in the GNOME module (vantle-gnome.so), loaded only on GNOME, so that no other
// desktop maps GIO and its libraries.
class GnomeKeybindings {
public:
    virtual ~GnomeKeybindings() = default;

    virtual QStringList listedPaths() const = 0;
    virtual void setListedPaths(const QStringList &paths) = 0;
    virtual void setEntry(
        const QString &path, const QString &name, const QString &command, const QString &binding)
        = 0;
    virtual void resetEntry(const QString &path) = 0;
    // Waits until the desktop has every change made so far.
    virtual void sync() = 0;
};

// The module's entry point: GNOME's keyboard settings, or null without their schemas (no
// gnome-settings-daemon installed). The caller owns the result.
using OpenGnomeKeybindings = GnomeKeybindings *(*)();
