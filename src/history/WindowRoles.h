// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPoint;
class QWindow;

// What the desktop is told about Vantle's own windows where the windowing system decides their
// place and focus itself (Wayland): that the copy confirmation is an overlay it must never give
// the keyboard, and that the popup belongs under the tray and not in the task bar.
//
// Guarantees of every implementation: main thread only; each call is made right after the
// window's show(), before its first frame, and applies to that showing only (a window shown
// again is told again); a window the desktop cannot be told about is left as it is.
class WindowRoles {
public:
    virtual ~WindowRoles() = default;

    // Whether overlays exist here: where not, the copy confirmation shows no window at all,
    // since an ordinary one would take the keyboard from the program the person works in.
    virtual bool canShowOverlays() const = 0;
    // `window` at `position` (global, logical pixels), above other windows, never focused.
    virtual void makeOverlay(QWindow &window, const QPoint &position) = 0;
    // `window` where the pointer is (on the tray icon after a click on it), inside the area the
    // panels leave free, out of the task bar and the window switcher.
    virtual void placeUnderPointer(QWindow &window) = 0;
};

// For desktops that cannot be told: no overlays, windows left where the desktop puts them.
class NullWindowRoles final : public WindowRoles {
public:
    bool canShowOverlays() const override { return false; }
    void makeOverlay(QWindow &, const QPoint &) override { }
    void placeUnderPointer(QWindow &) override { }
};
