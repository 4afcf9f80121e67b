// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/DisplayColorConversion.h"
#include "platform/x11/SamplerGeometry.h"

#include <QAbstractNativeEventFilter>
#include <QList>
#include <QPoint>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

#include <xcb/randr.h>
#include <xcb/xcb.h>

// The colour profiles of the X desktop's monitors, as colour managers publish them ("ICC
// Profiles in X"): the root window's property _ICC_PROFILE holds the first monitor's profile,
// _ICC_PROFILE_1, _ICC_PROFILE_2, ... the others', in the order RandR lists the monitors.
//
// Each profile's conversion is built once Vantle has started and again when its property is set,
// replaced or removed (PropertyNotify on the root), never while a pick runs. A monitor without
// a usable profile gives its pixels as they are, and one log line says why.
class X11DisplayProfiles : private QAbstractNativeEventFilter {
public:
    X11DisplayProfiles(xcb_connection_t *connection, xcb_window_t root, QSize screenSize);
    ~X11DisplayProfiles() override;

    // Reads every monitor's profile, the first time only: off the way of the start, before the
    // first pick.
    void ensureRead();
    // Asks the server for its monitors again, without waiting: one may have been added or
    // split off since the last pick. The answer is read by the next srgbAt().
    void refreshMonitors();
    // The sRGB colour that the pixel at `device` shows on its monitor.
    SamplerGeometry::Rgb srgbAt(const QPoint &device, const SamplerGeometry::Rgb &pixel);

private:
    void readMonitors();
    xcb_get_property_cookie_t requestProfile(size_t index);
    // Builds monitor `index`'s conversion from its property; takes the reply.
    void load(size_t index, xcb_get_property_reply_t *reply);
    QString monitorName(size_t index) const;
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    QSize m_screenSize;
    bool m_isRead = false;
    bool m_hasMonitors = false; // RandR 1.5 or later
    std::optional<xcb_randr_get_monitors_cookie_t> m_monitorsCookie;
    struct Monitor {
        QRect area;
        xcb_atom_t name;
    };
    QList<Monitor> m_monitors;
    std::vector<xcb_atom_t> m_atoms; // _ICC_PROFILE, _ICC_PROFILE_1, ...
    std::vector<std::unique_ptr<DisplayColorConversion>> m_conversions; // by the same index
};
