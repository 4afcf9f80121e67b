// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The desktop part of Vantle (widgets, the tray, the loupe, X11 and Wayland) is a module that
// the `vantle` program loads only when it shows something: the tray program and
// `vantle pick --print`. The other commands start on Qt Core and D-Bus alone, so
// `vantle pick` reaches the running Vantle in a fraction of the time a full start takes.
namespace DesktopPart {

// The module's one entry point: makes the QApplication and runs the tray program (no
// arguments) or `pick --print` with its arguments. Returns the exit status.
inline constexpr char entryPoint[] = "vantleDesktopMain";
using EntryPoint = int (*)(int argc, char **argv);

// True when the command line needs the desktop part.
bool isNeededFor(int argc, char **argv);

} // namespace DesktopPart
