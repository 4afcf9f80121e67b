// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Clipboard;
class QString;
class WindowRoles;

// The Wayland module (vantle-wayland.so) beside the desktop part: the code that speaks Wayland
// itself, so that only Wayland sessions map libwayland-client (and libffi with it). On those, Qt's
// own Wayland platform has mapped both already. Its entry points, each looked up on first use
// (LoadedWayland.h); every result is the caller's to own.
namespace WaylandModule {

// DataControlProbe.h
inline constexpr char probeDataControlEntry[] = "vantleCompositorOffersDataControl";
using ProbeDataControl = bool (*)();

// WaylandDataControlClipboard: null where it cannot connect; *protocolName says which protocol
// the compositor gave.
inline constexpr char connectClipboardEntry[] = "vantleConnectDataControlClipboard";
using ConnectClipboard = Clipboard *(*)(QString *protocolName);

// PlasmaShellSurfaces: null where Qt runs on no Wayland display or KWin's shell is not offered.
inline constexpr char connectPlasmaShellEntry[] = "vantleConnectPlasmaShell";
using ConnectPlasmaShell = WindowRoles *(*)();

} // namespace WaylandModule
