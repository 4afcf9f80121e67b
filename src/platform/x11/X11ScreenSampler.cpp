// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSampler.h"

#include "model/ColorFormat.h"
#include "platform/x11/SamplerLoupe.h"
#include "platform/x11/X11LoupeWindow.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <xcb/xcb_keysyms.h>

#include <cstdlib>
#include <utility>

namespace {

constexpr int grabAttemptLimit = 20;
constexpr int grabRetryMilliseconds = 25;
// While the pointer rests the loupe still follows what the screen shows, 20 times a second:
// one GetImage of a few KiB each time, and a redraw only when a pixel changed.
constexpr int liveRefreshMilliseconds = 50;
constexpr uint16_t crosshairGlyph = 34; // XC_crosshair in the standard cursor font

} // namespace

X11ScreenSampler::X11ScreenSampler(xcb_connection_t *connection)
    : m_connection(connection)
    , m_screen(xcb_setup_roots_iterator(xcb_get_setup(connection)).data)
    , m_root(connection, m_screen)
    , m_profiles(connection, m_screen->root, QSize(m_screen->width_in_pixels, m_screen->height_in_pixels))
{
    m_grabRetry.setInterval(grabRetryMilliseconds);
    m_grabRetry.setSingleShot(true);
    connect(&m_grabRetry, &QTimer::timeout, this, [this] {
        if (tryGrab())
            return redrawLoupe();
        if (++m_grabAttempts < grabAttemptLimit)
            m_grabRetry.start();
        else
            finish(std::nullopt); // someone else holds the pointer or keyboard: nothing is safe to show
    });
    m_liveRefresh.setInterval(liveRefreshMilliseconds);
    connect(&m_liveRefresh, &QTimer::timeout, this, &X11ScreenSampler::refreshLive);
    // The monitors' profiles (about a millisecond with one) are read once the start is over.
    QMetaObject::invokeMethod(
        this, [this] { m_profiles.ensureRead(); }, Qt::QueuedConnection);
}

X11ScreenSampler::~X11ScreenSampler()
{
    if (m_phase != Phase::idle)
        finish(std::nullopt);
    m_loupeWindow.reset();
    if (m_inputWindow != XCB_NONE) {
        xcb_destroy_window(m_connection, m_inputWindow);
        xcb_free_cursor(m_connection, m_cursor);
        xcb_flush(m_connection);
    }
    if (m_symbols)
        xcb_key_symbols_free(m_symbols);
}

xcb_window_t X11ScreenSampler::loupeWindow() const
{
    return m_phase != Phase::idle && m_loupeWindow ? m_loupeWindow->id() : XCB_NONE;
}

void X11ScreenSampler::ensureWindows()
{
    const uint16_t width = m_screen->width_in_pixels;
    const uint16_t height = m_screen->height_in_pixels;
    if (m_inputWindow == XCB_NONE) {
        const xcb_font_t font = xcb_generate_id(m_connection);
        xcb_open_font(m_connection, font, 6, "cursor");
        m_cursor = xcb_generate_id(m_connection);
        xcb_create_glyph_cursor(m_connection, m_cursor, font, font, crosshairGlyph, crosshairGlyph + 1, 0, 0,
            0, 0xffff, 0xffff, 0xffff);
        xcb_close_font(m_connection, font);

        m_inputWindow = xcb_generate_id(m_connection);
        const uint32_t values[] = { 1,
            XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS
                | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_FOCUS_CHANGE,
            m_cursor };
        xcb_create_window(m_connection, 0, m_inputWindow, m_screen->root, 0, 0, width, height, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
            XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_CURSOR, values);
        m_loupeWindow = std::make_unique<X11LoupeWindow>(m_connection, m_screen);
        m_symbols = xcb_key_symbols_alloc(m_connection);
    }
    // The desktop may have grown or shrunk since the last pick (a monitor plugged in).
    const uint32_t geometry[] = { 0, 0, width, height, XCB_STACK_MODE_ABOVE };
    xcb_configure_window(m_connection, m_inputWindow,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
            | XCB_CONFIG_WINDOW_STACK_MODE,
        geometry);
}

void X11ScreenSampler::pick(ColorFormat labelFormat, Completion completion)
{
    if (m_phase != Phase::idle || !m_root.isReadable()) {
        QMetaObject::invokeMethod(
            this, [c = std::move(completion)] { c(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    m_completion = std::move(completion);
    m_phase = Phase::grabbing;
    m_format = labelFormat;
    m_zoom = SamplerGeometry::defaultZoom;
    m_pressedResult.reset();
    m_pressedButton = 0;

    m_areas.clear();
    m_loupes.clear();
    for (QScreen *screen : QGuiApplication::screens()) {
        m_areas << SamplerGeometry::screenArea(screen->geometry(), screen->devicePixelRatio());
        m_loupes.push_back(std::make_unique<SamplerLoupe>(screen->devicePixelRatio()));
    }

    // The pointer's exact device position; QCursor::pos() would round to logical pixels.
    const auto pointerCookie = xcb_query_pointer(m_connection, m_screen->root);
    m_profiles.refreshMonitors();
    ensureWindows();
    xcb_map_window(m_connection, m_inputWindow);
    xcb_query_pointer_reply_t *pointer = xcb_query_pointer_reply(m_connection, pointerCookie, nullptr);
    m_hotspot = pointer ? QPoint(pointer->root_x, pointer->root_y)
                        : (m_areas.isEmpty() ? QPoint() : m_areas.first().device.center());
    std::free(pointer);

    QCoreApplication::instance()->installNativeEventFilter(this);
    m_hasFocusFromGrab = false;
    m_grabAttempts = 0;
    if (tryGrab())
        redrawLoupe();
    else
        m_grabRetry.start();
    m_liveRefresh.start();
}

bool X11ScreenSampler::tryGrab()
{
    // The input window is mapped (override-redirect windows map at once, and the requests go
    // out in order on this connection), so it can take both grabs.
    const uint16_t mask
        = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION;
    xcb_grab_pointer_reply_t *pointer = xcb_grab_pointer_reply(m_connection,
        xcb_grab_pointer(m_connection, 0, m_inputWindow, mask, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
            XCB_NONE, m_cursor, XCB_CURRENT_TIME),
        nullptr);
    const bool pointerGrabbed = pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS;
    std::free(pointer);
    if (!pointerGrabbed)
        return false;
    xcb_grab_keyboard_reply_t *keyboard = xcb_grab_keyboard_reply(m_connection,
        xcb_grab_keyboard(
            m_connection, 0, m_inputWindow, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr);
    const bool keyboardGrabbed = keyboard && keyboard->status == XCB_GRAB_STATUS_SUCCESS;
    std::free(keyboard);
    if (!keyboardGrabbed) {
        xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
        return false;
    }
    m_phase = Phase::aiming;
    return true;
}

void X11ScreenSampler::moveHotspot(const QPoint &device)
{
    if (m_phase == Phase::idle || m_pressedButton != 0 || device == m_hotspot)
        return;
    m_hotspot = device;
    if (isAiming())
        scheduleRedraw();
}

void X11ScreenSampler::nudge(int dx, int dy)
{
    m_hotspot = SamplerGeometry::nudged(m_areas, m_hotspot, dx, dy);
    // The real pointer follows, in device pixels, so the next mouse move continues from here.
    xcb_warp_pointer(
        m_connection, XCB_NONE, m_screen->root, 0, 0, 0, 0, int16_t(m_hotspot.x()), int16_t(m_hotspot.y()));
    redrawLoupe();
}

void X11ScreenSampler::changeZoom(int zoom)
{
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    redrawLoupe();
}

void X11ScreenSampler::scheduleRedraw()
{
    // Pointer moves arrive in bursts: one redraw after the burst, at the last position.
    if (m_isRedrawPending)
        return;
    m_isRedrawPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRedrawPending = false;
            if (isAiming())
                redrawLoupe();
        },
        Qt::QueuedConnection);
}

std::optional<SampledColor> X11ScreenSampler::colorAt(const QPoint &device)
{
    if (!SamplerGeometry::screenIndexAt(m_areas, device) && !m_areas.isEmpty())
        return std::nullopt;
    const auto pixel = SamplerGeometry::sampleAt(m_root.read(QRect(device, QSize(1, 1))), device, device);
    if (!pixel)
        return std::nullopt;
    const SamplerGeometry::Rgb shown = m_profiles.srgbAt(device, *pixel);
    return SampledColor { shown.red, shown.green, shown.blue, 1 };
}

void X11ScreenSampler::redrawLoupe()
{
    const auto index = SamplerGeometry::screenIndexAt(m_areas, m_hotspot);
    if (!index) {
        m_loupeWindow->hide();
        m_patch = QImage();
        return;
    }
    const SamplerLoupe &loupe = *m_loupes[size_t(*index)];
    const int across = SamplerGeometry::loupePixelsAcross(loupe.lensDiameter(), m_zoom);
    const QRect square(m_hotspot - QPoint(across / 2, across / 2), QSize(across, across));
    const QImage patch = m_root.read(square);
    // The lens shows the pixels as they are (this same monitor shows them); the label the text
    // a pick here copies.
    auto rgb = SamplerGeometry::sampleAt(patch, square.topLeft(), m_hotspot);
    if (rgb) {
        rgb = m_profiles.srgbAt(m_hotspot, *rgb);
        m_spokenValue.speak(formatColor(rgb->red, rgb->green, rgb->blue, 1, m_format));
    }
    QString text;
    if (m_isLabelReady) {
        text = rgb ? formatColor(rgb->red, rgb->green, rgb->blue, 1, m_format) : QString();
    } else if (!m_isLabelPending) {
        // The label needs the desktop's fonts, and loading them (fontconfig, FreeType, HarfBuzz)
        // costs 15-30 ms the first time. Vantle does not load them at launch, to stay small
        // in the background; the first pick shows its lens at once and the label a moment
        // later, once they are loaded.
        m_isLabelPending = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isLabelReady = true;
                if (isAiming())
                    redrawLoupe();
            },
            Qt::QueuedConnection);
    }
    const QImage image = loupe.render(patch, QPoint(across / 2, across / 2), m_zoom, text);
    const QRect place
        = SamplerGeometry::loupePlacement(m_areas[*index].device, m_hotspot, image.size(), loupe.gap());
    m_patch = patch;
    m_patchRect = square;
    m_loupeWindow->show(image, place);
}

void X11ScreenSampler::refreshLive()
{
    if (!isAiming() || m_patch.isNull() || m_isRedrawPending)
        return;
    // Only the square itself is read; a redraw follows only when something in it changed.
    if (m_root.read(m_patchRect) != m_patch)
        redrawLoupe();
}

void X11ScreenSampler::handleButton(const xcb_button_press_event_t *event, bool isPress)
{
    const QPoint device(event->root_x, event->root_y);
    if (!isPress) {
        // The press decided; the pick ends on its release so that the release reaches nothing else.
        if (m_pressedButton != 0 && event->detail == m_pressedButton)
            finish(m_pressedResult);
        return;
    }
    if (m_pressedButton != 0)
        return;
    switch (event->detail) {
    case XCB_BUTTON_INDEX_1:
        // The press's own position decides. The loupe may still stand where the pointer was
        // before a quick move (its redraw waits for the end of a burst of moves) and cover
        // this very pixel, and the root reads what is shown: the loupe goes first.
        m_hotspot = device;
        m_loupeWindow->hide();
        m_pressedResult = colorAt(device);
        m_pressedButton = event->detail;
        break;
    case XCB_BUTTON_INDEX_3:
        m_pressedResult.reset();
        m_pressedButton = event->detail;
        break;
    case XCB_BUTTON_INDEX_4: // the wheel, one notch a press
        changeZoom(SamplerGeometry::zoomedIn(m_zoom));
        break;
    case XCB_BUTTON_INDEX_5:
        changeZoom(SamplerGeometry::zoomedOut(m_zoom));
        break;
    default:
        break;
    }
}

bool X11ScreenSampler::handleKey(const xcb_key_press_event_t *event)
{
    if (!m_symbols)
        return false;
    const xcb_keysym_t keysym = xcb_key_symbols_get_keysym(m_symbols, event->detail, 0);
    const int step = (event->state & XCB_MOD_MASK_SHIFT) ? 10 : 1;
    switch (keysym) {
    case 0xff1b: // Escape
        finish(std::nullopt);
        return true;
    case 0xff0d: // Return
    case 0xff8d: // KP_Enter
    case 0x0020: // space
        finish(colorAt(m_hotspot));
        return true;
    case 0xff51: // Left
    case 0xff96: // KP_Left
        nudge(-step, 0);
        return true;
    case 0xff53: // Right
    case 0xff98: // KP_Right
        nudge(step, 0);
        return true;
    case 0xff52: // Up
    case 0xff97: // KP_Up
        nudge(0, -step);
        return true;
    case 0xff54: // Down
    case 0xff99: // KP_Down
        nudge(0, step);
        return true;
    case 0x002b: // plus
    case 0x003d: // equal, plus's own key on most layouts
    case 0xffab: // KP_Add
        changeZoom(SamplerGeometry::zoomedIn(m_zoom));
        return true;
    case 0x002d: // minus
    case 0x005f: // underscore
    case 0xffad: // KP_Subtract
        changeZoom(SamplerGeometry::zoomedOut(m_zoom));
        return true;
    default:
        // Not ours: a global shortcut pressed while the loupe is up still reaches its handler.
        return false;
    }
}

void X11ScreenSampler::finish(std::optional<SampledColor> result)
{
    if (m_phase == Phase::idle)
        return;
    const bool hasGrab = std::exchange(m_phase, Phase::idle) == Phase::aiming;
    m_grabRetry.stop();
    m_liveRefresh.stop();
    m_spokenValue.speak(QString()); // the loupe is gone: its value leaves the screen reader's tree
    QCoreApplication::instance()->removeNativeEventFilter(this);
    if (hasGrab) {
        xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
        xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
    }
    m_loupeWindow->hide();
    m_loupeWindow->release();
    xcb_unmap_window(m_connection, m_inputWindow);
    xcb_flush(m_connection);
    m_patch = QImage();
    m_loupes.clear();
    // The state is clear before the completion runs: it may start the next pick.
    Completion completion = std::move(m_completion);
    m_completion = nullptr;
    completion(result);
}

bool X11ScreenSampler::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t" || m_phase == Phase::idle)
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & ~0x80) {
    case XCB_MOTION_NOTIFY: {
        const auto *motion = reinterpret_cast<const xcb_motion_notify_event_t *>(event);
        if (motion->event != m_inputWindow)
            return false;
        moveHotspot(QPoint(motion->root_x, motion->root_y));
        return true;
    }
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE: {
        const auto *button = reinterpret_cast<const xcb_button_press_event_t *>(event);
        if (button->event != m_inputWindow)
            return false;
        handleButton(button, (event->response_type & ~0x80) == XCB_BUTTON_PRESS);
        return true;
    }
    case XCB_KEY_PRESS: {
        const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
        return key->event == m_inputWindow && handleKey(key);
    }
    case XCB_EXPOSE:
        if (reinterpret_cast<const xcb_expose_event_t *>(event)->window != m_loupeWindow->id())
            return false;
        m_loupeWindow->repaint();
        return true;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT: {
        const auto *focus = reinterpret_cast<const xcb_focus_in_event_t *>(event);
        if (focus->event != m_inputWindow || focus->detail == XCB_NOTIFY_DETAIL_POINTER)
            return false;
        if ((event->response_type & ~0x80) == XCB_FOCUS_IN && focus->mode == XCB_NOTIFY_MODE_GRAB) {
            m_hasFocusFromGrab = true;
        } else if ((event->response_type & ~0x80) == XCB_FOCUS_OUT && m_hasFocusFromGrab
            && (focus->mode == XCB_NOTIFY_MODE_GRAB || focus->mode == XCB_NOTIFY_MODE_UNGRAB)) {
            // Our keyboard grab went elsewhere (another client broke it): the user can no
            // longer be sure where the keys go, so the pick ends.
            QMetaObject::invokeMethod(
                this, [this] { finish(std::nullopt); }, Qt::QueuedConnection);
        }
        return true;
    }
    default:
        return false;
    }
}
