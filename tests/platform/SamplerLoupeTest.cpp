// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SamplerLoupe.h"
#include "platform/x11/SamplerGeometry.h"

#include <gtest/gtest.h>

namespace {

// A checkerboard of distinct colours, so every frozen pixel can be found again in the lens.
QImage frozenDesktop()
{
    QImage image(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            image.setPixel(x, y, qRgb(x * 4, y * 4, (x + y) % 2 ? 255 : 0));
    return image;
}

} // namespace

TEST(SamplerLoupe, MagnifiesAroundTheHotspotWithCrispCells)
{
    const QImage desktop = frozenDesktop();
    for (const double scale : { 1.0, 1.5, 2.0 }) {
        const SamplerLoupe loupe(scale);
        for (const int zoom :
            { SamplerGeometry::minimumZoom, SamplerGeometry::defaultZoom, SamplerGeometry::maximumZoom }) {
            const QPoint hotspot(30, 20);
            const QImage image = loupe.render(desktop, hotspot, zoom, QStringLiteral("#78503C"));
            ASSERT_EQ(image.size(), loupe.boxSize(QStringLiteral("#78503C")));
            const int d = loupe.lensDiameter();
            const QPoint centre((image.width() - d) / 2 + d / 2, d / 2);
            // The centre shows the hotspot's own colour (inside its outline).
            EXPECT_EQ(QColor(image.pixel(centre)), QColor(desktop.pixel(hotspot)))
                << scale << " zoom " << zoom;
            // Cells to the right and below (beyond the hotspot's frame): the neighbouring frozen
            // pixels, unblurred, sampled inside each cell past the grid line on its first row and
            // column, at the cell's last pixel.
            const int k = zoom >= 12 ? 1 : 2;
            const QPoint inRightCell = centre + QPoint(k * zoom + (zoom - 1) - zoom / 2, 0);
            const QPoint inLowerCell = centre + QPoint(0, k * zoom + (zoom - 1) - zoom / 2);
            EXPECT_EQ(image.pixel(inRightCell), desktop.pixel(hotspot + QPoint(k, 0)))
                << scale << " zoom " << zoom;
            EXPECT_EQ(image.pixel(inLowerCell), desktop.pixel(hotspot + QPoint(0, k)))
                << scale << " zoom " << zoom;
            // Outside the round lens (its corner) the loupe is transparent.
            EXPECT_EQ(qAlpha(image.pixel((image.width() - d) / 2, 0)), 0);
        }
    }
}

TEST(SamplerLoupe, GrowsWithTheTextAndTheScale)
{
    const SamplerLoupe one(1), two(2);
    EXPECT_EQ(two.lensDiameter(), 2 * one.lensDiameter());
    const QString longText = QStringLiteral("UIColor(red: 1.00, green: 0.42, blue: 0.21, alpha: 1.00)");
    EXPECT_GT(one.boxSize(longText).width(), one.boxSize(QStringLiteral("#FF6B36")).width());
    EXPECT_EQ(one.boxSize(QStringLiteral("#FF6B36")).width(), one.lensDiameter());
}
