// SPDX-License-Identifier: GPL-3.0-or-later
// Another X client that holds Alt+Shift+<key> before Vantle asks for it, as a desktop's own
// shortcut daemon would. Prints "grabbed" once the server accepted the grab and holds it until
// its standard input closes.
#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    const xcb_keysym_t keysym = argc > 1 ? xcb_keysym_t(argv[1][0]) : xcb_keysym_t('c');
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return 1;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_key_symbols_t *symbols = xcb_key_symbols_alloc(connection);
    xcb_keycode_t *keycodes = xcb_key_symbols_get_keycode(symbols, keysym);
    if (!keycodes)
        return 1;
    const xcb_void_cookie_t cookie = xcb_grab_key_checked(connection, 1, root,
        XCB_MOD_MASK_1 | XCB_MOD_MASK_SHIFT, keycodes[0], XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    if (xcb_generic_error_t *error = xcb_request_check(connection, cookie)) {
        std::free(error);
        return 1;
    }
    std::puts("grabbed");
    std::fflush(stdout);
    while (std::getchar() != EOF) { }
    std::free(keycodes);
    xcb_key_symbols_free(symbols);
    xcb_disconnect(connection);
    return 0;
}
