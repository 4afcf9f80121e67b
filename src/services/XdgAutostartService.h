// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/LoginItemService.h"

#include <QString>

// Launch at login through an XDG autostart entry ($XDG_CONFIG_HOME/autostart/vantle.desktop),
// which every freedesktop session (GNOME, KDE Plasma, Xfce, LXQt…) starts at login.
//
// Enabled means: the entry exists, can be read, and neither says Hidden=true nor
// X-GNOME-Autostart-enabled=false (how GNOME's own settings switch an entry off).
// The entry starts `programPath` (the installed program, or the AppImage it runs from).
class XdgAutostartService : public LoginItemService {
public:
    XdgAutostartService(QString entryPath, QString programPath);

    // $XDG_CONFIG_HOME/autostart/vantle.desktop
    static QString standardEntryPath();
    // The AppImage when running from one, else this executable.
    static QString runningProgramPath();

    bool isEnabled() const override;
    bool registerItem() override;
    bool unregisterItem() override;

    // The entry's text for a program path (Exec quoted as the Desktop Entry format requires).
    static QByteArray entryText(const QString &programPath);

private:
    QString m_entryPath;
    QString m_programPath;
};
