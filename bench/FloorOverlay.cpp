// SPDX-License-Identifier: GPL-3.0-or-later
// The floor for the loupe: the fastest a Qt 6 program puts a freeze-frame of the desktop on
// the screen. A passive key grab on the root (Alt+Shift+V, so it never competes with Vantle's
// Alt+Shift+C), an MIT-SHM capture of the root into memory shared with the X server, and one
// override-redirect window covering the screen, made once and reused, that paints the capture
// and takes the keyboard once mapped. Escape or a click hides it. Prints "ready" once the key
// is grabbed.
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

constexpr uint32_t keysymV = 0x76;

xcb_keycode_t keycodeFor(xcb_connection_t *connection, uint32_t keysym)
{
    const xcb_setup_t *setup = xcb_get_setup(connection);
    const int count = setup->max_keycode - setup->min_keycode + 1;
    xcb_get_keyboard_mapping_reply_t *mapping = xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, uint8_t(count)), nullptr);
    if (!mapping)
        return 0;
    const xcb_keysym_t *syms = xcb_get_keyboard_mapping_keysyms(mapping);
    xcb_keycode_t found = 0;
    for (int i = 0; i < count && !found; ++i)
        for (int j = 0; j < mapping->keysyms_per_keycode; ++j)
            if (syms[i * mapping->keysyms_per_keycode + j] == keysym) {
                found = xcb_keycode_t(setup->min_keycode + i);
                break;
            }
    std::free(mapping);
    return found;
}

class Overlay : public QWidget {
public:
    Overlay()
        : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setAttribute(Qt::WA_NoSystemBackground);
    }
    QImage image;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawImage(0, 0, image);
    }
    void mousePressEvent(QMouseEvent *) override { hide(); }
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Escape)
            hide();
    }
};

class Floor : public QAbstractNativeEventFilter {
public:
    explicit Floor(xcb_connection_t *connection)
        : m_connection(connection)
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        m_root = screen->root;
        m_width = screen->width_in_pixels;
        m_height = screen->height_in_pixels;
        m_shmId = shmget(IPC_PRIVATE, size_t(m_width) * m_height * 4, IPC_CREAT | 0600);
        m_memory = static_cast<uchar *>(shmat(m_shmId, nullptr, 0));
        shmctl(m_shmId, IPC_RMID, nullptr); // freed when both sides detach
        m_segment = xcb_generate_id(connection);
        xcb_shm_attach(connection, m_segment, uint32_t(m_shmId), 0);
        m_trigger = keycodeFor(connection, keysymV);
        m_escape = keycodeFor(connection, 0xff1b);
        xcb_grab_key(connection, 1, m_root, XCB_MOD_MASK_1 | XCB_MOD_MASK_SHIFT, m_trigger,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
        m_overlay.setGeometry(QGuiApplication::primaryScreen()->geometry());
        m_overlay.winId(); // the native window exists before the first trigger
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        auto *event = static_cast<xcb_generic_event_t *>(message);
        if ((event->response_type & ~0x80) == XCB_MAP_NOTIFY
            && static_cast<xcb_map_notify_event_t *>(message)->window == xcb_window_t(m_overlay.winId())) {
            free(xcb_grab_keyboard_reply(m_connection,
                xcb_grab_keyboard(
                    m_connection, 1, m_root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                nullptr));
            return false;
        }
        if ((event->response_type & ~0x80) != XCB_KEY_PRESS)
            return false;
        const auto *key = static_cast<xcb_key_press_event_t *>(message);
        if (key->detail == m_trigger && !m_overlay.isVisible()) {
            capture();
            m_overlay.show();
            return true;
        }
        if (key->detail == m_escape && m_overlay.isVisible()) {
            m_overlay.hide();
            xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
            return true;
        }
        return false;
    }

private:
    void capture()
    {
        xcb_shm_get_image_reply_t *reply = xcb_shm_get_image_reply(m_connection,
            xcb_shm_get_image(
                m_connection, m_root, 0, 0, m_width, m_height, ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0),
            nullptr);
        std::free(reply);
        m_overlay.image = QImage(m_memory, m_width, m_height, QImage::Format_RGB32);
    }

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    uint16_t m_width, m_height;
    int m_shmId;
    uchar *m_memory;
    xcb_shm_seg_t m_segment;
    xcb_keycode_t m_trigger, m_escape;
    Overlay m_overlay;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) {
        std::fprintf(stderr, "floor overlay: needs an X server (QT_QPA_PLATFORM=xcb)\n");
        return 1;
    }
    Floor floor(x11->connection());
    app.installNativeEventFilter(&floor);
    std::printf("ready\n");
    std::fflush(stdout);
    return QApplication::exec();
}
