// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WindowCompositing.h"

#include <QGuiApplication>
#include <cstdlib>
#include <xcb/xcb.h>

bool desktopShowsTranslucentWindows()
{
    // Other platforms (the offscreen one among them) may still answer for X11 with no
    // connection of their own.
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *connection = x11 ? x11->connection() : nullptr;
    if (QGuiApplication::platformName() != u"xcb" || !connection)
        return true;
    // The compositor of screen 0 owns this selection (EWMH); Xinerama and RandR setups have
    // one X screen.
    static const char name[] = "_NET_WM_CM_S0";
    xcb_intern_atom_reply_t *atom
        = xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, sizeof name - 1, name), nullptr);
    if (!atom)
        return false;
    xcb_get_selection_owner_reply_t *owner
        = xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr);
    const bool owned = owner && owner->owner != XCB_NONE;
    std::free(owner);
    std::free(atom);
    return owned;
}
