// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Symbols.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

// Every symbol the screens ask for by name.
const char *const symbolNames[] = {
    "eyedropper",
    "eyedropper.halffull",
    "pin.fill",
    "gearshape",
    "gear",
    "square.and.arrow.up",
    "power",
    "chevron.left",
    "checkmark",
    "doc.on.doc",
    "doc.on.clipboard",
    "xmark.circle.fill",
    "info.circle",
    "square.grid.2x2",
    "arrow.right",
    "circle.fill",
};

QImage render(const char *name, int size, const QColor &color = Qt::black)
{
    return Symbols::pixmap(QLatin1String(name), size, color).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

// Each symbol draws a shape at every size (neither empty nor a solid block: a lost fill="none"
// paints the whole outline's inside), inside its square (a glyph drawn past its 24x24 box is cut
// off: its border pixels would be solid), and takes the tint without changing its shape.
TEST(Symbols, EveryNamedSymbolDrawsATintedShapeInsideItsSquare)
{
    const QColor accent(0xFF, 0x6B, 0x35);
    for (const char *name : symbolNames) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(Symbols::exists(QLatin1String(name)));
        for (int size : { 9, 16, 24, 48 }) {
            SCOPED_TRACE(size);
            const QImage image = render(name, size);
            const QImage tinted = render(name, size, accent);
            ASSERT_EQ(image.size(), QSize(size, size));
            double inked = 0;
            int solidOnBorder = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x) {
                    const int alpha = qAlpha(image.pixel(x, y));
                    inked += alpha / 255.0;
                    solidOnBorder += alpha == 255 && (x == 0 || y == 0 || x == size - 1 || y == size - 1);
                    ASSERT_EQ(qAlpha(tinted.pixel(x, y)), alpha);
                    if (alpha == 255) {
                        ASSERT_EQ(QColor(tinted.pixel(x, y)), accent);
                    }
                }
            EXPECT_GT(inked / (size * size), 0.03);
            EXPECT_LT(inked / (size * size), 0.6);
            if (size == 48) {
                EXPECT_EQ(solidOnBorder, 0);
            }
        }
    }
}

TEST(Symbols, FilledCircleAndCutOutCross)
{
    const struct {
        const char *name;
        QPoint probe;
        bool inked;
    } cases[] = {
        { "circle.fill", { 24, 24 }, true },
        { "circle.fill", { 2, 2 }, false },
        { "xmark.circle.fill", { 24, 24 }, false }, // the cross is cut out of the disc
        { "xmark.circle.fill", { 24, 8 }, true }, // disc between the arms
        { "xmark.circle.fill", { 24, 40 }, true },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(qAlpha(render(c.name, 48).pixel(c.probe)) > 128, c.inked)
            << c.probe.x() << "," << c.probe.y();
    }
}

TEST(Symbols, UnknownNameDrawsNothing)
{
    EXPECT_FALSE(Symbols::exists(QStringLiteral("no.such.symbol")));
    EXPECT_TRUE(Symbols::pixmap(QStringLiteral("no.such.symbol"), 16, Qt::black).isNull());
}
