// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11LoupeWindow.h"

#include <QPainter>
#include <xcb/shape.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

// The lens's soft rim: pixels at least half covered belong to the window.
constexpr int shapeAlphaThreshold = 128;

// The window's shape as runs of covered pixels, one row at a time; equal neighbouring rows
// are merged, so a lens is a few dozen rectangles rather than one per row.
std::vector<xcb_rectangle_t> shapeOf(const QImage &loupe)
{
    std::vector<xcb_rectangle_t> rows;
    std::vector<xcb_rectangle_t> previous, current;
    auto flush = [&](int y) {
        // Rows of `previous` that `current` continues grow by one; the others are final.
        if (current.size() == previous.size()
            && std::equal(current.begin(), current.end(), previous.begin(),
                [](const auto &a, const auto &b) { return a.x == b.x && a.width == b.width; })) {
            for (auto &r : previous)
                ++r.height;
            return;
        }
        rows.insert(rows.end(), previous.begin(), previous.end());
        previous = current;
        for (auto &r : previous) {
            r.y = int16_t(y);
            r.height = 1;
        }
    };
    for (int y = 0; y < loupe.height(); ++y) {
        current.clear();
        const auto *line = reinterpret_cast<const QRgb *>(loupe.constScanLine(y));
        for (int x = 0; x < loupe.width();) {
            if (qAlpha(line[x]) < shapeAlphaThreshold) {
                ++x;
                continue;
            }
            const int start = x;
            while (x < loupe.width() && qAlpha(line[x]) >= shapeAlphaThreshold)
                ++x;
            current.push_back(xcb_rectangle_t { int16_t(start), 0, uint16_t(x - start), 1 });
        }
        flush(y);
    }
    current.clear();
    flush(loupe.height());
    return rows;
}

bool sameShape(const std::vector<xcb_rectangle_t> &a, const std::vector<xcb_rectangle_t> &b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(xcb_rectangle_t)) == 0;
}

xcb_atom_t atom(xcb_connection_t *connection, const char *name)
{
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

} // namespace

X11LoupeWindow::X11LoupeWindow(xcb_connection_t *connection, const xcb_screen_t *screen)
    : m_connection(connection)
    , m_screen(screen)
{
}

X11LoupeWindow::~X11LoupeWindow()
{
    if (m_window != XCB_NONE) {
        xcb_free_gc(m_connection, m_gc);
        xcb_destroy_window(m_connection, m_window);
        xcb_flush(m_connection);
    }
}

void X11LoupeWindow::create()
{
    m_window = xcb_generate_id(m_connection);
    // No background: every pixel inside the shape is painted from the frame, so the server
    // never flashes a fill before it.
    const uint32_t values[] = { XCB_BACK_PIXMAP_NONE, 1, XCB_EVENT_MASK_EXPOSURE };
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_screen->root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
        XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    m_gc = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, m_gc, m_window, 0, nullptr);
    // Named, so that a person (or a test) looking at the window list knows what it is.
    static constexpr char windowClass[] = "vantle-loupe\0Vantle";
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
        sizeof windowClass, windowClass);
    if (const xcb_atom_t pidAtom = atom(m_connection, "_NET_WM_PID"); pidAtom != XCB_ATOM_NONE) {
        const uint32_t pid = uint32_t(getpid());
        xcb_change_property(
            m_connection, XCB_PROP_MODE_REPLACE, m_window, pidAtom, XCB_ATOM_CARDINAL, 32, 1, &pid);
    }
    const xcb_query_extension_reply_t *shape = xcb_get_extension_data(m_connection, &xcb_shape_id);
    m_hasShape = shape && shape->present;
    if (m_hasShape) {
        // Input passes through the loupe to the window below (the sampler's grab takes it).
        xcb_shape_rectangles(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
            m_window, 0, 0, 0, nullptr);
    }
}

void X11LoupeWindow::show(const QImage &loupe, const QRect &device)
{
    if (m_window == XCB_NONE)
        create();

    m_frame = QImage(loupe.size(), QImage::Format_RGB32);
    m_frame.fill(Qt::black);
    {
        QPainter painter(&m_frame);
        painter.drawImage(0, 0, loupe);
    }
    if (m_hasShape) {
        std::vector<xcb_rectangle_t> shape = shapeOf(loupe);
        if (!sameShape(shape, m_shape) || device.size() != m_geometry.size()) {
            m_shape = std::move(shape);
            xcb_shape_rectangles(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                XCB_CLIP_ORDERING_UNSORTED, m_window, 0, 0, uint32_t(m_shape.size()), m_shape.data());
        }
    }
    if (device != m_geometry || !m_isShown) {
        const uint32_t values[] = { uint32_t(device.x()), uint32_t(device.y()), uint32_t(device.width()),
            uint32_t(device.height()), XCB_STACK_MODE_ABOVE };
        xcb_configure_window(m_connection, m_window,
            XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
                | XCB_CONFIG_WINDOW_STACK_MODE,
            values);
        m_geometry = device;
    }
    if (!m_isShown) {
        xcb_map_window(m_connection, m_window);
        m_isShown = true;
    }
    putImage();
    xcb_flush(m_connection);
}

void X11LoupeWindow::putImage()
{
    if (m_frame.isNull())
        return;
    // In bands that fit one request, whatever the server's request size limit.
    const uint32_t maxBytes = xcb_get_maximum_request_length(m_connection) * 4 - 64;
    const int stride = int(m_frame.bytesPerLine());
    const int bandRows = std::max(1, int(maxBytes / uint32_t(stride)));
    for (int top = 0; top < m_frame.height(); top += bandRows) {
        const int rows = std::min(bandRows, m_frame.height() - top);
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_gc, uint16_t(m_frame.width()),
            uint16_t(rows), 0, int16_t(top), 0, m_screen->root_depth, uint32_t(rows * stride),
            m_frame.constScanLine(top));
    }
}

void X11LoupeWindow::repaint()
{
    if (!m_isShown)
        return;
    putImage();
    xcb_flush(m_connection);
}

void X11LoupeWindow::hide()
{
    if (!m_isShown)
        return;
    xcb_unmap_window(m_connection, m_window);
    xcb_flush(m_connection);
    m_isShown = false;
}

void X11LoupeWindow::release()
{
    m_frame = QImage();
}
