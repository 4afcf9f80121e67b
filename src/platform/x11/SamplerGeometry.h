// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

// The arithmetic of the freeze-frame sampler, free of windows and X so that tests can pin it.
//
// Everything the user aims at lives in device pixels: the X root window, the pixels read and
// the hotspot all share one coordinate space. Qt's logical coordinates only appear at the edge,
// in the screens' geometry.
namespace SamplerGeometry {

// One screen as both coordinate spaces see it. Qt keeps a screen's top-left corner at its
// device position and divides only the size by the scale factor.
struct ScreenArea {
    QRect logical;
    QRect device;
    double scale = 1;
};

ScreenArea screenArea(const QRect &logicalGeometry, double scale);

// The screen whose device area holds the point, if any.
std::optional<qsizetype> screenIndexAt(const QList<ScreenArea> &screens, const QPoint &device);

// An arrow-key move of the hotspot by (dx, dy) device pixels. The hotspot may cross onto a
// neighbouring screen; otherwise it stops at the edge of the screen it is on.
QPoint nudged(const QList<ScreenArea> &screens, const QPoint &hotspot, int dx, int dy);

// Zoom: the edge of one magnified pixel, in device pixels of the loupe. Odd or even sizes both
// keep the grid crisp because the loupe is drawn at device resolution.
inline constexpr int minimumZoom = 4;
inline constexpr int maximumZoom = 32;
inline constexpr int defaultZoom = 12;
// One wheel notch or +/− key: the next step up or down, held within the bounds.
int zoomedIn(int zoom);
int zoomedOut(int zoom);

// How many frozen pixels fit across a loupe of `diameter` device pixels: always odd, so that
// the hotspot pixel sits in the middle with as many neighbours on each side.
int loupePixelsAcross(int diameter, int zoom);

// Where the loupe (its whole box: the lens and the text beneath) goes for a hotspot: below and
// to the right of it, flipped to the other side on the axis that would leave the screen, and
// finally clamped so that it stays fully on a screen too small to flip on.
QRect loupePlacement(const QRect &screenDevice, const QPoint &hotspot, const QSize &box, int gap);

// The sRGB components of one frozen pixel; the X screen is taken as sRGB with 8-bit channels.
struct Rgb {
    double red, green, blue;
};
// `image` holds the desktop from `imageOrigin` (device pixels); nothing outside it.
std::optional<Rgb> sampleAt(const QImage &image, const QPoint &imageOrigin, const QPoint &device);

} // namespace SamplerGeometry
