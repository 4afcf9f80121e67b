// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SamplerGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace SamplerGeometry {

namespace {

constexpr std::array<int, 10> zoomSteps = { 4, 6, 8, 10, 12, 16, 20, 24, 28, 32 };
static_assert(zoomSteps.front() == minimumZoom && zoomSteps.back() == maximumZoom);

} // namespace

ScreenArea screenArea(const QRect &logicalGeometry, double scale)
{
    const QSize deviceSize(int(std::lround(logicalGeometry.width() * scale)),
        int(std::lround(logicalGeometry.height() * scale)));
    return { logicalGeometry, QRect(logicalGeometry.topLeft(), deviceSize), scale };
}

std::optional<qsizetype> screenIndexAt(const QList<ScreenArea> &screens, const QPoint &device)
{
    for (qsizetype i = 0; i < screens.size(); ++i)
        if (screens[i].device.contains(device))
            return i;
    return std::nullopt;
}

QPoint nudged(const QList<ScreenArea> &screens, const QPoint &hotspot, int dx, int dy)
{
    const QPoint target = hotspot + QPoint(dx, dy);
    if (screenIndexAt(screens, target))
        return target;
    const auto current = screenIndexAt(screens, hotspot);
    if (!current)
        return hotspot;
    const QRect &d = screens[*current].device;
    return { std::clamp(target.x(), d.left(), d.right()), std::clamp(target.y(), d.top(), d.bottom()) };
}

int zoomedIn(int zoom)
{
    const auto next = std::upper_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
    return next == zoomSteps.end() ? maximumZoom : *next;
}

int zoomedOut(int zoom)
{
    const auto next = std::lower_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
    return next == zoomSteps.begin() ? minimumZoom : *std::prev(next);
}

int loupePixelsAcross(int diameter, int zoom)
{
    const int across = (diameter + zoom - 1) / std::max(zoom, 1);
    return across % 2 == 0 ? across + 1 : across;
}

QRect loupePlacement(const QRect &screenDevice, const QPoint &hotspot, const QSize &box, int gap)
{
    int x = hotspot.x() + 1 + gap;
    if (x + box.width() - 1 > screenDevice.right())
        x = hotspot.x() - gap - box.width();
    int y = hotspot.y() + 1 + gap;
    if (y + box.height() - 1 > screenDevice.bottom())
        y = hotspot.y() - gap - box.height();
    x = std::max(screenDevice.left(), std::min(x, screenDevice.right() + 1 - box.width()));
    y = std::max(screenDevice.top(), std::min(y, screenDevice.bottom() + 1 - box.height()));
    return { QPoint(x, y), box };
}

std::optional<Rgb> sampleAt(const QImage &image, const QPoint &imageOrigin, const QPoint &device)
{
    const QPoint p = device - imageOrigin;
    if (!image.rect().contains(p))
        return std::nullopt;
    const QRgb pixel = image.pixel(p);
    return Rgb { qRed(pixel) / 255.0, qGreen(pixel) / 255.0, qBlue(pixel) / 255.0 };
}

} // namespace SamplerGeometry
