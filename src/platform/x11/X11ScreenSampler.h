// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/ScreenColorSampler.h"
#include "platform/x11/LoupeSpokenValue.h"
#include "platform/x11/SamplerGeometry.h"
#include "platform/x11/X11DisplayProfiles.h"
#include "platform/x11/X11RootReader.h"

#include <QAbstractNativeEventFilter>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

class SamplerLoupe;
class X11LoupeWindow;
struct _XCBKeySymbols;

// Vantle's own sampler for X11 desktops, which have none. While the user aims:
// - an input-only window covers the whole desktop and holds the pointer and keyboard grabs,
//   so no click or key reaches another application; it draws nothing, so nothing of ours is
//   ever between the user and the pixels;
// - on each pointer move the loupe reads only the small square of the screen it magnifies
//   (a few KiB through GetImage) and shows it in a small shaped window placed beside the
//   hotspot, never over the square it reads; a slow refresh keeps it live while the pointer
//   rests (an animation, a window repainting after the popup closed).
//
// Positions come from the X events themselves (root coordinates, which are device pixels), so
// every pixel of a screen can be reached and picked exactly at any scale factor. The picked
// colour, and the loupe's label, are the sRGB colour that the pixel shows through its monitor's
// profile. Between picks nothing runs and nothing of the screen is kept: the two windows stay,
// unmapped and empty.
class X11ScreenSampler : public QObject, public ScreenColorSampler, private QAbstractNativeEventFilter {
    Q_OBJECT
public:
    explicit X11ScreenSampler(xcb_connection_t *connection);
    ~X11ScreenSampler() override;

    void pick(ColorFormat labelFormat, Completion completion) override;

    // For benchmarks and tests: the loupe window while a pick is under way (0 otherwise), and
    // the hotspot moved as a pointer move would.
    xcb_window_t loupeWindow() const;
    void moveHotspot(const QPoint &device);

private:
    void ensureWindows();
    bool tryGrab();
    void nudge(int dx, int dy);
    void changeZoom(int zoom);
    void scheduleRedraw();
    void redrawLoupe();
    void refreshLive();
    std::optional<SampledColor> colorAt(const QPoint &device);
    void handleButton(const xcb_button_press_event_t *event, bool isPress);
    bool handleKey(const xcb_key_press_event_t *event);
    void finish(std::optional<SampledColor> result);
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    xcb_connection_t *m_connection;
    const xcb_screen_t *m_screen;
    X11RootReader m_root;
    X11DisplayProfiles m_profiles; // what the monitors show for their pixels, in sRGB
    xcb_window_t m_inputWindow = XCB_NONE;
    xcb_cursor_t m_cursor = XCB_NONE;
    std::unique_ptr<X11LoupeWindow> m_loupeWindow;
    _XCBKeySymbols *m_symbols = nullptr;

    Completion m_completion;
    // A pick shows the loupe and takes input only once it holds both grabs: what the person
    // sees is what their click does.
    enum class Phase { idle, grabbing, aiming };
    Phase m_phase = Phase::idle;
    // The loupe follows the pointer until a button press decides the pick.
    bool isAiming() const { return m_phase == Phase::aiming && m_pressedButton == 0; }
    QList<SamplerGeometry::ScreenArea> m_areas;
    std::vector<std::unique_ptr<SamplerLoupe>> m_loupes; // one per screen, for its scale
    QPoint m_hotspot;
    int m_zoom = SamplerGeometry::defaultZoom;
    ColorFormat m_format = ColorFormat::hex;
    QImage m_patch; // the square the loupe shows, centred on the hotspot
    QRect m_patchRect;
    bool m_isRedrawPending = false;
    bool m_isLabelReady = false; // the label's fonts are loaded
    bool m_isLabelPending = false;
    QTimer m_liveRefresh;
    LoupeSpokenValue m_spokenValue;
    // A pick decided on a button press ends on its release, so the release stays ours too.
    std::optional<SampledColor> m_pressedResult;
    quint8 m_pressedButton = 0;
    // Grabs can fail for a moment while the key that started the pick is still held by
    // whoever bound it; a few retries while the pick runs, never afterwards.
    QTimer m_grabRetry;
    int m_grabAttempts = 0;
    bool m_hasFocusFromGrab = false;
};
