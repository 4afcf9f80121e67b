// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/DataControlProbe.h"

#include <cstring>
#include <wayland-client.h>

namespace {

void onGlobal(void *data, wl_registry *, uint32_t, const char *interface, uint32_t)
{
    if (std::strcmp(interface, "ext_data_control_manager_v1") == 0
        || std::strcmp(interface, "zwlr_data_control_manager_v1") == 0)
        *static_cast<bool *>(data) = true;
}

void onGlobalRemove(void *, wl_registry *, uint32_t) { }

constexpr wl_registry_listener listener { &onGlobal, &onGlobalRemove };

} // namespace

bool compositorOffersDataControl()
{
    wl_display *display = wl_display_connect(nullptr);
    if (!display)
        return false;
    bool offered = false;
    wl_registry *registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &listener, &offered);
    wl_display_roundtrip(display);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return offered;
}
