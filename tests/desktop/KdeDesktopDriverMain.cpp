// SPDX-License-Identifier: GPL-3.0-or-later
// kde_desktop_driver key EVDEV_CODE... | move X Y | click: keys and pointer at the KDE desktop for
// kde-driver.py, through KWin's org_kde_kwin_fake_input, which only a Wayland client speaks.
#include "fake-input-client-protocol.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <linux/input-event-codes.h>
#include <string>
#include <thread>
#include <wayland-client.h>

namespace {

void onGlobal(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t version)
{
    if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0 && version >= 4) {
        *static_cast<org_kde_kwin_fake_input **>(data) = static_cast<org_kde_kwin_fake_input *>(
            wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4));
    }
}
void onGlobalRemove(void *, wl_registry *, uint32_t) { }
const wl_registry_listener registryListener { onGlobal, onGlobalRemove };

} // namespace

int main(int argc, char **argv)
{
    wl_display *display = wl_display_connect(nullptr);
    org_kde_kwin_fake_input *input = nullptr;
    if (display) {
        wl_registry_add_listener(wl_display_get_registry(display), &registryListener, &input);
        wl_display_roundtrip(display);
    }
    if (!input) {
        std::fputs("KWin offers no org_kde_kwin_fake_input version 4\n", stderr);
        return 1;
    }
    org_kde_kwin_fake_input_authenticate(input, "Vantle tests", "drives the desktop");
    // A hand holds a key some 50 ms, and KWin's picker needs a moment between a move and a click.
    const auto settle = [display] {
        wl_display_roundtrip(display);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    };
    const std::string verb = argc > 1 ? argv[1] : "";
    if (verb == "key" && argc > 2) {
        for (int i = 2; i < 2 * argc - 2; ++i) { // pressed in order, released in reverse
            const bool isPress = i < argc;
            org_kde_kwin_fake_input_keyboard_key(input, std::atoi(argv[isPress ? i : 2 * argc - 1 - i]),
                isPress ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
            settle();
        }
    } else if (verb == "move" && argc == 4) {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            input, wl_fixed_from_int(std::atoi(argv[2])), wl_fixed_from_int(std::atoi(argv[3])));
    } else if (verb == "click") {
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_PRESSED);
        settle();
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_RELEASED);
    } else {
        std::fprintf(stderr, "kde_desktop_driver: unknown verb %s\n", verb.c_str());
        return 2;
    }
    settle();
    return 0; // the connection ends with the process
}
