// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"
#include "history/WindowRoles.h"

#include <memory>

class QString;

// The Wayland facilities as the desktop part reaches them: through the Wayland module
// (WaylandModule.h), loaded on the first call and kept to the end of the process. Without the
// module each answers as where the compositor lacks the facility (no data-control, no plasma
// shell), and the first call says why once.
namespace LoadedWayland {

// compositorOffersDataControl() (DataControlProbe.h); callable before QApplication exists.
bool compositorOffersDataControl();
// WaylandDataControlClipboard::connect(); *protocolName says which protocol it speaks.
std::unique_ptr<Clipboard> connectDataControlClipboard(QString *protocolName);
// PlasmaShellSurfaces::connect().
std::unique_ptr<WindowRoles> connectPlasmaShell();

} // namespace LoadedWayland
