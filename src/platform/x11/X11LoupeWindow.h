// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>
#include <vector>

#include <xcb/xcb.h>

// The small window that shows the loupe while the user aims: an override-redirect X window
// exactly the size of the loupe, shaped to the lens and its label, filled with the loupe's
// device pixels. It never takes input or focus, and it holds no image of the screen: only the
// last loupe frame (a few hundred KiB at most), so that it can repaint itself when exposed.
class X11LoupeWindow {
public:
    X11LoupeWindow(xcb_connection_t *connection, const xcb_screen_t *screen);
    ~X11LoupeWindow();

    X11LoupeWindow(const X11LoupeWindow &) = delete;
    X11LoupeWindow &operator=(const X11LoupeWindow &) = delete;

    // Shows `loupe` (premultiplied ARGB, device pixels; its transparent parts are left out of
    // the window's shape) at `device`, on top of every other window.
    void show(const QImage &loupe, const QRect &device);
    void hide();
    // Paints the last frame again (after an Expose).
    void repaint();
    // Drops the last frame; the window itself is kept for the next pick.
    void release();

    xcb_window_t id() const { return m_window; }
    const QRect &geometry() const { return m_geometry; }
    bool isShown() const { return m_isShown; }

private:
    void create();
    void putImage();

    xcb_connection_t *m_connection;
    const xcb_screen_t *m_screen;
    xcb_window_t m_window = XCB_NONE;
    xcb_gcontext_t m_gc = XCB_NONE;
    bool m_hasShape = false;
    bool m_isShown = false;
    QRect m_geometry;
    QImage m_frame; // opaque RGB32, what the window shows
    std::vector<xcb_rectangle_t> m_shape;
};
