// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>

#include <xcb/xcb.h>

// Reads squares of the X desktop as it shows now: GetImage on the root window, which holds
// what every window on it shows (ours too, so callers keep the loupe off what they read).
class X11RootReader {
public:
    X11RootReader(xcb_connection_t *connection, const xcb_screen_t *screen);

    // Whether the root's pixels are 32-bit 0xRRGGBB, the only layout read; otherwise every
    // read is black.
    bool isReadable() const { return m_isReadable; }
    // The desktop's pixels in `device` (device pixels, opaque RGB32); black beyond the desktop.
    QImage read(const QRect &device) const;

private:
    xcb_connection_t *m_connection;
    const xcb_screen_t *m_screen;
    bool m_isReadable;
};
