#include "platform/X11DesktopCapture.h"

#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

constexpr uint32_t allPlanes = ~0u;

// The pixel formats X gives us for a ZPixmap of depth 24 or 32 on a little- or big-endian
// server: 32 bits per pixel with the channels in the visual's masks. The common case,
// 0xRRGGBB in native order, is exactly QImage::Format_RGB32.
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

// X leaves the top byte of a depth-24 pixel undefined and servers hand it back as whatever was
// stored, usually 0x00, while QImage::Format_RGB32 promises 0xff there. Qt's painting trusts
// that promise: scaling such pixels into an ARGB32_Premultiplied image (the loupe) copies them
// as fully transparent colours, which then add onto whatever is painted beneath instead of
// covering it. One pass over memory we own makes the frozen desktop an honest opaque image.
void makeOpaque(uchar *bits, size_t pixels)
{
    auto *pixel = reinterpret_cast<quint32 *>(bits);
    for (size_t i = 0; i < pixels; ++i)
        pixel[i] |= 0xff000000u;
}

} // namespace

std::unique_ptr<X11DesktopCapture> X11DesktopCapture::capture(xcb_connection_t *connection)
{
    if (!connection || xcb_connection_has_error(connection))
        return nullptr;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (!screen || !isRgb32(connection, screen))
        return nullptr;
    std::unique_ptr<X11DesktopCapture> result(new X11DesktopCapture);
    result->m_connection = connection;
    const int width = screen->width_in_pixels;
    const int height = screen->height_in_pixels;
    if (result->captureShared(connection, screen->root, width, height)
        || result->capturePlain(connection, screen->root, width, height))
        return result;
    return nullptr;
}

bool X11DesktopCapture::captureShared(xcb_connection_t *connection, unsigned root, int width, int height)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_shm_id);
    if (!extension || !extension->present)
        return false;
    const size_t size = size_t(width) * size_t(height) * 4;
    m_shmId = shmget(IPC_PRIVATE, size, IPC_CREAT | 0600);
    if (m_shmId < 0)
        return false;
    m_memory = shmat(m_shmId, nullptr, 0);
    // Marked for removal at once: the kernel frees it when both we and the server detach,
    // even if we crash in between.
    shmctl(m_shmId, IPC_RMID, nullptr);
    if (m_memory == reinterpret_cast<void *>(-1)) {
        m_memory = nullptr;
        return false;
    }
    m_segment = xcb_generate_id(connection);
    xcb_generic_error_t *error = xcb_request_check(
        connection, xcb_shm_attach_checked(connection, m_segment, uint32_t(m_shmId), 0));
    if (error) {
        std::free(error);
        m_segment = 0;
        shmdt(m_memory);
        m_memory = nullptr;
        return false;
    }
    return fillShared(root, width, height); // on failure the destructor detaches
}

bool X11DesktopCapture::fillShared(unsigned root, int width, int height)
{
    xcb_generic_error_t *error = nullptr;
    const auto cookie = xcb_shm_get_image(m_connection, root, 0, 0, uint16_t(width), uint16_t(height), allPlanes,
                                          XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0);
    xcb_shm_get_image_reply_t *reply = xcb_shm_get_image_reply(m_connection, cookie, &error);
    std::free(error);
    if (!reply)
        return false;
    std::free(reply);
    // The server has written its last into the segment: the reply only comes once it is done.
    makeOpaque(static_cast<uchar *>(m_memory), size_t(width) * size_t(height));
    m_image = QImage(static_cast<const uchar *>(m_memory), width, height, width * 4, QImage::Format_RGB32);
    return true;
}

bool X11DesktopCapture::refresh()
{
    if (!m_connection || xcb_connection_has_error(m_connection))
        return false;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    // The setup's root size is the one at connection time; the image tells what was captured.
    xcb_get_geometry_reply_t *geometry =
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, screen->root), nullptr);
    if (!geometry)
        return false;
    const int width = geometry->width;
    const int height = geometry->height;
    std::free(geometry);
    if (width != m_image.width() || height != m_image.height())
        return false;
    m_image = QImage(); // nothing may read the memory while the server writes into it
    if (m_segment)
        return fillShared(screen->root, width, height);
    return capturePlain(m_connection, screen->root, width, height);
}

bool X11DesktopCapture::capturePlain(xcb_connection_t *connection, unsigned root, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return false;
    // GetImage replies are limited by the maximum request length; take the desktop in bands.
    const uint32_t maxBytes = xcb_get_maximum_request_length(connection) * 4 - 64;
    const int bandRows = std::max(1, int(maxBytes / uint32_t(width * 4)));
    for (int top = 0; top < height; top += bandRows) {
        const int rows = std::min(bandRows, height - top);
        const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, 0, int16_t(top),
                                          uint16_t(width), uint16_t(rows), allPlanes);
        xcb_get_image_reply_t *reply = xcb_get_image_reply(connection, cookie, nullptr);
        if (!reply)
            return false;
        const int length = xcb_get_image_data_length(reply);
        if (length < rows * width * 4) {
            std::free(reply);
            return false;
        }
        const uint8_t *data = xcb_get_image_data(reply);
        for (int row = 0; row < rows; ++row) {
            std::memcpy(image.scanLine(top + row), data + size_t(row) * width * 4, size_t(width) * 4);
            makeOpaque(image.scanLine(top + row), size_t(width));
        }
        std::free(reply);
    }
    m_image = image;
    return true;
}

X11DesktopCapture::~X11DesktopCapture()
{
    m_image = QImage(); // before the memory it may point into goes
    if (m_segment && m_connection) {
        xcb_shm_detach(m_connection, m_segment);
        xcb_flush(m_connection);
    }
    if (m_memory)
        shmdt(m_memory);
}
