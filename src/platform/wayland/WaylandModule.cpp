// SPDX-License-Identifier: GPL-3.0-or-later
// The Wayland module's entry points (see WaylandModule.h).
#include "platform/wayland/WaylandModule.h"

#include "platform/wayland/DataControlProbe.h"
#include "platform/wayland/PlasmaShellSurfaces.h"
#include "platform/wayland/WaylandDataControlClipboard.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT bool vantleCompositorOffersDataControl()
{
    return compositorOffersDataControl();
}

extern "C" Q_DECL_EXPORT Clipboard *vantleConnectDataControlClipboard(QString *protocolName)
{
    std::unique_ptr<WaylandDataControlClipboard> clipboard = WaylandDataControlClipboard::connect();
    if (clipboard && protocolName)
        *protocolName = clipboard->protocolName();
    return clipboard.release();
}

extern "C" Q_DECL_EXPORT WindowRoles *vantleConnectPlasmaShell()
{
    return PlasmaShellSurfaces::connect().release();
}

// The desktop part calls them through these types: a signature changed on one side only would
// be undefined behaviour that no linker sees.
static_assert(std::is_same_v<decltype(&vantleCompositorOffersDataControl), WaylandModule::ProbeDataControl>);
static_assert(std::is_same_v<decltype(&vantleConnectDataControlClipboard), WaylandModule::ConnectClipboard>);
static_assert(std::is_same_v<decltype(&vantleConnectPlasmaShell), WaylandModule::ConnectPlasmaShell>);
