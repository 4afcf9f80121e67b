#include "platform/X11ScreenSampler.h"

#include "model/ColorFormat.h"
#include "platform/SamplerLoupe.h"
#include "platform/SamplerOverlay.h"
#include "platform/X11DesktopCapture.h"
#include "services/SettingsViewModel.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <xcb/xcb.h>

#include <cstdlib>

namespace {

constexpr int grabAttemptLimit = 20;
constexpr int grabRetryMilliseconds = 25;

QImage screenPart(const QImage &desktop, const QRect &device)
{
    const QRect part = device.intersected(desktop.rect());
    if (part.isEmpty())
        return {};
    // Shares the desktop's pixels: no copy of a 4K screen on the way to the first frame.
    return QImage(desktop.constScanLine(part.top()) + part.left() * 4, part.width(), part.height(),
                  desktop.bytesPerLine(), desktop.format());
}

} // namespace

X11ScreenSampler::X11ScreenSampler(xcb_connection_t *connection, const SettingsStore &store)
    : m_connection(connection)
    , m_store(store)
{
    m_grabRetry.setInterval(grabRetryMilliseconds);
    m_grabRetry.setSingleShot(true);
    connect(&m_grabRetry, &QTimer::timeout, this, [this] {
        if (tryGrab())
            return;
        if (++m_grabAttempts < grabAttemptLimit)
            m_grabRetry.start();
        else
            finish(std::nullopt); // someone else holds the pointer or keyboard: nothing is safe to show
    });
}

X11ScreenSampler::~X11ScreenSampler()
{
    if (m_isPicking)
        finish(std::nullopt);
}

std::vector<SamplerOverlay *> X11ScreenSampler::overlays() const
{
    std::vector<SamplerOverlay *> result;
    if (m_isPicking)
        for (const auto &overlay : m_overlays)
            result.push_back(overlay.get());
    return result;
}

void X11ScreenSampler::pick(Completion completion)
{
    auto nothing = [this](Completion c) {
        QMetaObject::invokeMethod(this, [c = std::move(c)] { c(std::nullopt); }, Qt::QueuedConnection);
    };
    if (m_isPicking) {
        nothing(std::move(completion));
        return;
    }
    // The memory shared with the server is kept from the previous pick: filling it again is
    // what makes the loupe come up at once.
    if (!m_capture || !m_capture->refresh())
        m_capture = X11DesktopCapture::capture(m_connection);
    if (!m_capture) {
        nothing(std::move(completion));
        return;
    }
    m_completion = std::move(completion);
    m_isPicking = true;
    m_format = int(SettingsViewModel::currentFormat(m_store));
    m_zoom = SamplerGeometry::defaultZoom;
    m_pressedResult.reset();
    m_isPressed = false;

    QList<SamplerGeometry::ScreenArea> areas;
    for (QScreen *screen : QGuiApplication::screens())
        areas << SamplerGeometry::screenArea(screen->geometry(), screen->devicePixelRatio());
    prepareOverlays(areas);

    // The pointer's exact device position; QCursor::pos() would round to logical pixels.
    xcb_query_pointer_reply_t *pointer = xcb_query_pointer_reply(
        m_connection, xcb_query_pointer(m_connection, xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root),
        nullptr);
    const QPoint start = pointer ? QPoint(pointer->root_x, pointer->root_y) : m_areas.first().device.center();
    std::free(pointer);
    m_hotspot = start;
    redrawLoupe();

    for (const auto &overlay : m_overlays) {
        overlay->show();
        overlay->raise();
    }
    QCoreApplication::instance()->installNativeEventFilter(this);
    m_hasGrab = false;
    m_hasFocusFromGrab = false;
    m_grabAttempts = 0;
    if (!tryGrab())
        m_grabRetry.start();
}

void X11ScreenSampler::prepareOverlays(const QList<SamplerGeometry::ScreenArea> &areas)
{
    m_areas = areas;
    while (m_overlays.size() > size_t(areas.size()))
        m_overlays.pop_back();
    m_loupes.clear();
    for (qsizetype i = 0; i < areas.size(); ++i) {
        if (size_t(i) == m_overlays.size()) {
            auto overlay = std::make_unique<SamplerOverlay>();
            connect(overlay.get(), &SamplerOverlay::pointerMoved, this, &X11ScreenSampler::moveHotspot);
            connect(overlay.get(), &SamplerOverlay::buttonPressed, this, &X11ScreenSampler::handleButton);
            connect(overlay.get(), &SamplerOverlay::buttonReleased, this, [this] {
                if (m_isPressed)
                    finish(m_pressedResult);
            });
            connect(overlay.get(), &SamplerOverlay::wheelTurned, this, [this](int notches) {
                int zoom = m_zoom;
                for (int n = 0; n < std::abs(notches); ++n)
                    zoom = notches > 0 ? SamplerGeometry::zoomedIn(zoom) : SamplerGeometry::zoomedOut(zoom);
                changeZoom(zoom);
            });
            connect(overlay.get(), &SamplerOverlay::keyPressed, this, &X11ScreenSampler::handleKey);
            connect(overlay.get(), &SamplerOverlay::closedUnexpectedly, this, [this] { finish(std::nullopt); });
            m_overlays.push_back(std::move(overlay));
        }
        m_overlays[size_t(i)]->cover(areas[i], screenPart(m_capture->image(), areas[i].device));
        m_loupes.push_back(std::make_unique<SamplerLoupe>(areas[i].scale));
    }
}

bool X11ScreenSampler::tryGrab()
{
    // The overlay under the pointer takes the grabs: its window is mapped (override-redirect
    // windows map at once, and the requests go out in order on this connection).
    const auto index = SamplerGeometry::screenIndexAt(m_areas, m_hotspot).value_or(0);
    const xcb_window_t window = xcb_window_t(m_overlays[size_t(index)]->winId());
    const uint16_t mask = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE
        | XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;
    xcb_grab_pointer_reply_t *pointer = xcb_grab_pointer_reply(
        m_connection,
        xcb_grab_pointer(m_connection, 1, window, mask, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
                         XCB_NONE, XCB_CURRENT_TIME),
        nullptr);
    const bool pointerGrabbed = pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS;
    std::free(pointer);
    if (!pointerGrabbed)
        return false;
    xcb_grab_keyboard_reply_t *keyboard = xcb_grab_keyboard_reply(
        m_connection,
        xcb_grab_keyboard(m_connection, 1, window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr);
    const bool keyboardGrabbed = keyboard && keyboard->status == XCB_GRAB_STATUS_SUCCESS;
    std::free(keyboard);
    if (!keyboardGrabbed) {
        xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
        return false;
    }
    m_hasGrab = true;
    m_overlays[size_t(index)]->activateWindow();
    return true;
}

void X11ScreenSampler::moveHotspot(const QPoint &device)
{
    if (!m_isPicking || device == m_hotspot)
        return;
    m_hotspot = device;
    redrawLoupe();
}

void X11ScreenSampler::nudge(int dx, int dy)
{
    m_hotspot = SamplerGeometry::nudged(m_areas, m_hotspot, dx, dy);
    // The real pointer follows, in device pixels, so the next mouse move continues from here.
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    xcb_warp_pointer(m_connection, XCB_NONE, root, 0, 0, 0, 0, int16_t(m_hotspot.x()), int16_t(m_hotspot.y()));
    xcb_flush(m_connection);
    redrawLoupe();
}

void X11ScreenSampler::changeZoom(int zoom)
{
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    redrawLoupe();
}

void X11ScreenSampler::redrawLoupe()
{
    const auto index = SamplerGeometry::screenIndexAt(m_areas, m_hotspot);
    const QImage &desktop = m_capture->image();
    const auto rgb = SamplerGeometry::sampleAt(desktop, QPoint(0, 0), m_hotspot);
    m_text = rgb ? formatColor(rgb->red, rgb->green, rgb->blue, 1, ColorFormat(m_format)) : QString();
    for (size_t i = 0; i < m_overlays.size(); ++i) {
        if (!index || size_t(*index) != i) {
            m_overlays[i]->hideLoupe();
            continue;
        }
        const SamplerLoupe &loupe = *m_loupes[i];
        const QImage image = loupe.render(desktop, m_hotspot, m_zoom, m_text);
        const QRect place = SamplerGeometry::loupePlacement(m_areas[qsizetype(i)].device, m_hotspot,
                                                            image.size(), loupe.gap());
        m_overlays[i]->showLoupe(image, place);
    }
}

void X11ScreenSampler::handleButton(Qt::MouseButton button, const QPoint &device)
{
    if (!m_isPicking || m_isPressed)
        return;
    if (button == Qt::LeftButton) {
        m_hotspot = device;
        const auto rgb = SamplerGeometry::sampleAt(m_capture->image(), QPoint(0, 0), device);
        m_pressedResult = rgb ? std::optional(SampledColor{rgb->red, rgb->green, rgb->blue, 1}) : std::nullopt;
        m_isPressed = true;
    } else if (button == Qt::RightButton) {
        m_pressedResult.reset();
        m_isPressed = true;
    }
}

void X11ScreenSampler::handleKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (!m_isPicking)
        return;
    const int step = modifiers.testFlag(Qt::ShiftModifier) ? 10 : 1;
    switch (key) {
    case Qt::Key_Escape:
        finish(std::nullopt);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        pickAt(m_hotspot);
        break;
    case Qt::Key_Left:
        nudge(-step, 0);
        break;
    case Qt::Key_Right:
        nudge(step, 0);
        break;
    case Qt::Key_Up:
        nudge(0, -step);
        break;
    case Qt::Key_Down:
        nudge(0, step);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        changeZoom(SamplerGeometry::zoomedIn(m_zoom));
        break;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        changeZoom(SamplerGeometry::zoomedOut(m_zoom));
        break;
    default:
        break;
    }
}

void X11ScreenSampler::pickAt(const QPoint &device)
{
    const auto rgb = SamplerGeometry::sampleAt(m_capture->image(), QPoint(0, 0), device);
    finish(rgb ? std::optional(SampledColor{rgb->red, rgb->green, rgb->blue, 1}) : std::nullopt);
}

void X11ScreenSampler::finish(std::optional<SampledColor> result)
{
    if (!m_isPicking)
        return;
    m_isPicking = false;
    m_grabRetry.stop();
    QCoreApplication::instance()->removeNativeEventFilter(this);
    if (m_hasGrab) {
        xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
        xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
        m_hasGrab = false;
    }
    for (const auto &overlay : m_overlays) {
        overlay->hide();
        overlay->release();
    }
    xcb_flush(m_connection);
    // The state is clear before the completion runs: it may start the next pick.
    Completion completion = std::move(m_completion);
    m_completion = nullptr;
    completion(result);
}

bool X11ScreenSampler::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t" || !m_hasGrab)
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const uint8_t type = event->response_type & ~0x80;
    if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT)
        return false;
    const auto *focus = reinterpret_cast<const xcb_focus_in_event_t *>(event);
    bool isOurs = false;
    for (const auto &overlay : m_overlays)
        isOurs = isOurs || xcb_window_t(overlay->winId()) == focus->event;
    if (!isOurs || focus->detail == XCB_NOTIFY_DETAIL_POINTER)
        return false;
    if (type == XCB_FOCUS_IN && focus->mode == XCB_NOTIFY_MODE_GRAB) {
        m_hasFocusFromGrab = true;
    } else if (type == XCB_FOCUS_OUT && m_hasFocusFromGrab
               && (focus->mode == XCB_NOTIFY_MODE_GRAB || focus->mode == XCB_NOTIFY_MODE_UNGRAB)) {
        // Our keyboard grab went elsewhere (another client broke it, or our window lost its
        // visibility): the user can no longer be sure where the keys go, so the pick ends.
        QMetaObject::invokeMethod(this, [this] { finish(std::nullopt); }, Qt::QueuedConnection);
    }
    return false;
}
