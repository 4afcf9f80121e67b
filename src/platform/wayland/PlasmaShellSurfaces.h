// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/WindowRoles.h"

#include <QHash>
#include <QObject>
#include <memory>

struct org_kde_plasma_shell;
struct org_kde_plasma_surface;
struct wl_display;
struct wl_event_queue;

// Window roles through KWin's org_kde_plasma_shell, on Qt's own Wayland connection, since the
// roles apply to the wl_surface of Qt's window: the copy confirmation is an on-screen display
// (KWin never gives those the keyboard, and puts them where asked above other windows); the
// popup opens under the pointer (only the compositor knows where the pointer is on Wayland),
// kept out of the task bar and the window switcher.
//
// The protocol's objects live on an event queue of our own: Qt never dispatches them, and
// their requests need no answer.
class PlasmaShellSurfaces final : public WindowRoles {
public:
    // Null when Qt runs on no Wayland display or the compositor offers no plasma shell.
    static std::unique_ptr<PlasmaShellSurfaces> connect();
    ~PlasmaShellSurfaces() override;

    bool canShowOverlays() const override { return true; }
    void makeOverlay(QWindow &window, const QPoint &position) override;
    void placeUnderPointer(QWindow &window) override;

private:
    PlasmaShellSurfaces(
        wl_display *display, wl_event_queue *queue, org_kde_plasma_shell *shell, uint version);
    org_kde_plasma_surface *surfaceFor(QWindow &window);
    void release(QWindow *window);

    wl_display *m_display;
    wl_event_queue *m_queue;
    org_kde_plasma_shell *m_shell;
    uint m_version;
    // One plasma surface per showing of a window; Qt makes a new wl_surface at each show.
    QHash<QWindow *, org_kde_plasma_surface *> m_surfaces;
    QObject m_context; // owns the connections to the windows' signals
};
