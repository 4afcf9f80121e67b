// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/LoadedWayland.h"

#include "platform/LoadedModule.h"
#include "platform/wayland/WaylandModule.h"

#include <QString>
#include <utility>

namespace {

constexpr char moduleFileName[] = "vantle-wayland.so";

// The entry point `name` of the module, null without it. A module that cannot be loaded is
// reported once, not at each of the three first uses.
void *entry(const char *name)
{
    static bool isReported = false;
    QString error;
    void *found = loadedModuleEntry(moduleFileName, name, &error);
    if (!found && !std::exchange(isReported, true))
        qWarning("vantle: the Wayland part of Vantle cannot be loaded (%s): the clipboard goes through Qt "
                 "and the desktop is told nothing about Vantle's windows. Reinstalling Vantle puts it back.",
            qPrintable(error));
    return found;
}

} // namespace

bool LoadedWayland::compositorOffersDataControl()
{
    const auto probe
        = reinterpret_cast<WaylandModule::ProbeDataControl>(entry(WaylandModule::probeDataControlEntry));
    return probe && probe();
}

std::unique_ptr<Clipboard> LoadedWayland::connectDataControlClipboard(QString *protocolName)
{
    const auto connect
        = reinterpret_cast<WaylandModule::ConnectClipboard>(entry(WaylandModule::connectClipboardEntry));
    return std::unique_ptr<Clipboard>(connect ? connect(protocolName) : nullptr);
}

std::unique_ptr<WindowRoles> LoadedWayland::connectPlasmaShell()
{
    const auto connect
        = reinterpret_cast<WaylandModule::ConnectPlasmaShell>(entry(WaylandModule::connectPlasmaShellEntry));
    return std::unique_ptr<WindowRoles>(connect ? connect() : nullptr);
}
