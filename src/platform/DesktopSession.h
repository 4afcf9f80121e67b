// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What the desktop session is, read once at start-up: everything the choice of backends
// depends on. A plain value, so that the choice can be tested for every kind of desktop.
struct DesktopSession {
    QString platformName; // Qt's platform plugin: "xcb", "wayland", "wayland-egl", "offscreen", …
    QString sessionType; // XDG_SESSION_TYPE: "x11", "wayland", "tty", or empty
    bool hasX11Connection = false; // Qt talks to an X server (XWayland included)
    bool hasWaylandDisplay = false; // WAYLAND_DISPLAY or WAYLAND_SOCKET names a compositor
    // VANTLE_SAMPLER=portal|x11, VANTLE_CLIPBOARD=qt|data-control,
    // VANTLE_SHORTCUTS=x11|portal|gnome|none force a backend, for tests and bug reports.
    QString samplerOverride;
    QString clipboardOverride;
    QString shortcutsOverride;
    QString currentDesktop; // XDG_CURRENT_DESKTOP: "GNOME", "ubuntu:GNOME", "KDE", "sway", …

    // Qt's windows are Wayland surfaces: the compositor places them, and the clipboard follows focus.
    bool isWayland() const { return platformName.startsWith(u"wayland"); }
    // Qt's windows are X11 windows, placed where asked.
    bool isX11() const { return platformName == u"xcb"; }
    // The user's session is Wayland, even where Qt runs through XWayland.
    bool isWaylandSession() const { return sessionType.compare(u"wayland", Qt::CaseInsensitive) == 0; }
    // GNOME's shell draws the desktop, whatever flavour names it first.
    bool isGnome() const;

    // This process's session, from the environment and the running QGuiApplication.
    static DesktopSession current();
};

enum class SamplerBackend { portal, x11, none };
enum class ClipboardBackend { qt, dataControl };
enum class ShortcutBackend { x11, portal, gnome, none };

struct BackendChoice {
    SamplerBackend sampler;
    ClipboardBackend clipboard;
    ShortcutBackend shortcuts;
    bool operator==(const BackendChoice &) const = default;
};

// Every backend choice of the program, in one place. A forced backend wins; otherwise:
// - the screen sampler: our own on X11, the portal on Wayland, where no client may read the
//   screen (under XWayland too: the X root shows nothing of the other clients);
// - the clipboard: data-control on Wayland, which needs no focus, tried first also under
//   XWayland, since the X11 selection reaches Wayland programs only as far as the compositor
//   bridges it; QClipboard on X11, which owns the selection without focus anyway;
// - global shortcuts: key grabs on X11, the GlobalShortcuts portal on Wayland, none elsewhere;
//   on GNOME's Wayland session, under XWayland too (X key grabs there see keys only while an
//   X11 window has the focus), the portal where GNOME has it, else GNOME's custom shortcuts.
BackendChoice chooseBackends(const DesktopSession &session);

// What the desktop part finds before QApplication chooses its platform.
struct StartEnvironment {
    bool isPlatformChosen = false; // QT_QPA_PLATFORM, or -platform on the command line
    bool hasWaylandDisplay = false; // WAYLAND_DISPLAY
    bool hasX11Display = false; // DISPLAY: XWayland beside the compositor
    bool offersDataControl = false; // the compositor's answer, asked only when it matters

    // Whether the compositor must be asked for data-control before the platform is chosen.
    bool needsDataControlProbe() const { return !isPlatformChosen && hasWaylandDisplay && hasX11Display; }
};

// The Qt platform to run on, or empty for Qt's own choice. A compositor without data-control
// (GNOME's mutter) leaves a Wayland client no clipboard without focus, while an X11 selection
// set through XWayland needs none and the compositor hands it on to Wayland programs: there,
// "xcb". A platform the person chose is never overridden.
QByteArray qtPlatformFor(const StartEnvironment &environment);
