#pragma once

#include "history/ScreenColorSampler.h"
#include "platform/SamplerGeometry.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPoint>
#include <QTimer>
#include <memory>
#include <vector>

class SamplerLoupe;
class SamplerOverlay;
class SettingsStore;
class X11DesktopCapture;
struct xcb_connection_t;

// Vantle's own sampler for X11 desktops, which have none: a freeze-frame of the whole desktop
// covers every screen, a loupe follows the pointer, and pointer and keyboard are grabbed so
// that no click or key reaches another application while the user aims.
//
// The hotspot is kept in device pixels (the X root's coordinates), which reaches every pixel
// of a screen at any scale factor. Nothing runs between picks: the overlay windows and the
// capture's memory shared with the X server are kept, hidden and idle, only so that the next
// pick shows its first frame sooner.
class X11ScreenSampler : public QObject, public ScreenColorSampler, private QAbstractNativeEventFilter {
    Q_OBJECT
public:
    // `store` gives the preferred format of the loupe's text, read at every pick.
    X11ScreenSampler(xcb_connection_t *connection, const SettingsStore &store);
    ~X11ScreenSampler() override;

    void pick(Completion completion) override;

    // For benchmarks and tests: the overlays of the pick under way.
    std::vector<SamplerOverlay *> overlays() const;

private:
    void prepareOverlays(const QList<SamplerGeometry::ScreenArea> &areas);
    bool tryGrab();
    void moveHotspot(const QPoint &device);
    void nudge(int dx, int dy);
    void changeZoom(int zoom);
    void redrawLoupe();
    void handleButton(Qt::MouseButton button, const QPoint &device);
    void handleKey(int key, Qt::KeyboardModifiers modifiers);
    void pickAt(const QPoint &device);
    void finish(std::optional<SampledColor> result);
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    xcb_connection_t *m_connection;
    const SettingsStore &m_store;
    Completion m_completion;
    bool m_isPicking = false;
    std::unique_ptr<X11DesktopCapture> m_capture;
    std::vector<std::unique_ptr<SamplerOverlay>> m_overlays;
    std::vector<std::unique_ptr<SamplerLoupe>> m_loupes; // one per overlay, for its scale
    QList<SamplerGeometry::ScreenArea> m_areas;
    QPoint m_hotspot;
    int m_zoom = SamplerGeometry::defaultZoom;
    QString m_text;
    int m_format = 0;
    // A pick decided on a button press ends on its release, so the release stays ours too.
    std::optional<SampledColor> m_pressedResult;
    bool m_isPressed = false;
    // Grabs can fail for a moment while the key that started the pick is still held by
    // whoever bound it; a few retries while the pick runs, never afterwards.
    QTimer m_grabRetry;
    int m_grabAttempts = 0;
    bool m_hasGrab = false;
    bool m_hasFocusFromGrab = false;
};
