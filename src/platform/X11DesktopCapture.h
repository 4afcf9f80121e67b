#pragma once

#include <QImage>
#include <QRect>
#include <memory>

struct xcb_connection_t;

// One frozen copy of the whole X desktop (every screen, device pixels) taken through xcb.
//
// MIT-SHM lets the X server write the pixels straight into memory we share with it: at
// 3840x2160 that is one copy instead of a 33 MB round trip through the socket. The shared
// segment lives as long as this object and the image points into it without copying; when
// the server offers no MIT-SHM (a remote display), a plain GetImage fills an ordinary image.
//
// The server writing into a fresh segment costs far more than the copy itself (every page is
// new to it: about 90 ms for 1920x1080 on a busy two-core machine against 3 ms into pages it
// has written before), so a capture kept between picks is taken again with `refresh()`.
class X11DesktopCapture {
public:
    // Null when the display cannot be read (wrong depth, the request failed).
    static std::unique_ptr<X11DesktopCapture> capture(xcb_connection_t *connection);
    ~X11DesktopCapture();

    X11DesktopCapture(const X11DesktopCapture &) = delete;
    X11DesktopCapture &operator=(const X11DesktopCapture &) = delete;

    // Takes the desktop again into the same memory; false when the desktop changed size or
    // the display cannot be read, and a new capture is needed.
    bool refresh();

    // The root window's pixels; its origin is device (0, 0).
    const QImage &image() const { return m_image; }

private:
    X11DesktopCapture() = default;
    bool captureShared(xcb_connection_t *connection, unsigned root, int width, int height);
    bool fillShared(unsigned root, int width, int height);
    bool capturePlain(xcb_connection_t *connection, unsigned root, int width, int height);

    xcb_connection_t *m_connection = nullptr;
    unsigned m_segment = 0; // xcb_shm_seg_t while attached
    int m_shmId = -1;
    void *m_memory = nullptr;
    QImage m_image;
};
