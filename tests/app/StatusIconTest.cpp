// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusIcon.h"

#include <gtest/gtest.h>

namespace {

// The symbol's painted pixels: every opaque-ish pixel inside the 18 × 18 square.
int symbolPixels(const QImage &image, QRgb *sample)
{
    int count = 0;
    for (int y = 0; y < 18; ++y)
        for (int x = 0; x < 18; ++x)
            if (qAlpha(image.pixel(x, y)) > 200) {
                ++count;
                *sample = image.pixel(x, y);
            }
    return count;
}

} // namespace

TEST(StatusIcon, TheSymbolTakesThePanelsTintAndTheDotThePickedColour)
{
    for (bool dark : { false, true }) {
        SCOPED_TRACE(dark ? "dark panel" : "light panel");
        const QImage image = StatusIcon::iconWithDot(dark, QColor::fromRgbF(1.0, 0.42, 0.21, 0.2));
        ASSERT_EQ(image.size(), QSize(30, 18));
        // The dot: opaque picked colour at its centre, whatever the stored alpha, vertically centred.
        EXPECT_EQ(image.pixelColor(26, 9), QColor(255, 107, 54));
        EXPECT_EQ(qAlpha(image.pixel(26, 3)), 0);
        EXPECT_EQ(qAlpha(image.pixel(26, 14)), 0);
        // White on dark panels, black on light ones; the plain icon is the same symbol.
        QRgb sample = 0;
        EXPECT_GT(symbolPixels(image, &sample), 20) << "the eyedropper is drawn";
        EXPECT_EQ(QColor(sample).lightness(), dark ? 255 : 0);
        EXPECT_GT(symbolPixels(StatusIcon::plainIcon(dark), &sample), 20);
        EXPECT_EQ(QColor(sample).lightness(), dark ? 255 : 0);
    }
    EXPECT_EQ(StatusIcon::plainIcon(false, 2.0).size(), QSize(36, 36)) << "device pixels at scale 2";
}
