// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11RootReader.h"

#include <QSysInfo>

#include <cstdlib>

namespace {

// Pixels X gives us for a ZPixmap of the root: 32 bits a pixel with the channels in the
// visual's masks. The common case, 0xRRGGBB in native order, is exactly QImage::Format_RGB32.
bool isRgb32(xcb_connection_t *connection, const xcb_screen_t *screen)
{
    if (screen->root_depth != 24 && screen->root_depth != 32)
        return false;
    const xcb_setup_t *setup = xcb_get_setup(connection);
    bool bpp32 = false;
    for (auto it = xcb_setup_pixmap_formats_iterator(setup); it.rem; xcb_format_next(&it))
        if (it.data->depth == screen->root_depth)
            bpp32 = it.data->bits_per_pixel == 32;
    const bool nativeOrder = (setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST)
        == (QSysInfo::ByteOrder == QSysInfo::LittleEndian);
    for (auto d = xcb_screen_allowed_depths_iterator(screen); d.rem; xcb_depth_next(&d)) {
        for (auto v = xcb_depth_visuals_iterator(d.data); v.rem; xcb_visualtype_next(&v)) {
            if (v.data->visual_id == screen->root_visual)
                return bpp32 && nativeOrder && v.data->red_mask == 0xff0000 && v.data->green_mask == 0xff00
                    && v.data->blue_mask == 0xff;
        }
    }
    return false;
}

} // namespace

X11RootReader::X11RootReader(xcb_connection_t *connection, const xcb_screen_t *screen)
    : m_connection(connection)
    , m_screen(screen)
    , m_isReadable(screen && isRgb32(connection, screen))
{
}

QImage X11RootReader::read(const QRect &device) const
{
    QImage image(device.size(), QImage::Format_RGB32);
    image.fill(Qt::black); // beyond the desktop
    const QRect part = device.intersected(QRect(0, 0, m_screen->width_in_pixels, m_screen->height_in_pixels));
    if (!m_isReadable || part.isEmpty())
        return image;
    xcb_get_image_reply_t *reply = xcb_get_image_reply(m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, int16_t(part.x()),
            int16_t(part.y()), uint16_t(part.width()), uint16_t(part.height()), ~0u),
        nullptr);
    if (!reply)
        return image;
    const auto *data = xcb_get_image_data(reply);
    const int rowBytes = part.width() * 4;
    if (xcb_get_image_data_length(reply) >= rowBytes * part.height()) {
        const QPoint at = part.topLeft() - device.topLeft();
        for (int y = 0; y < part.height(); ++y) {
            auto *to = reinterpret_cast<quint32 *>(image.scanLine(at.y() + y)) + at.x();
            const auto *from = reinterpret_cast<const quint32 *>(data + y * rowBytes);
            // X leaves the top byte of a depth-24 pixel undefined (usually zero) where
            // Format_RGB32 promises 0xff; painting trusts that promise.
            for (int x = 0; x < part.width(); ++x)
                to[x] = from[x] | 0xff000000u;
        }
    }
    std::free(reply);
    return image;
}
