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

double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum / (image.width() * image.height());
}

} // namespace

TEST(Symbols, EveryNamedSymbolDrawsAShapeAtEverySize)
{
    for (const char *name : symbolNames) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(Symbols::exists(QLatin1String(name)));
        for (int size : { 9, 16, 24, 48 }) {
            SCOPED_TRACE(size);
            const QImage image = render(name, size);
            ASSERT_EQ(image.size(), QSize(size, size));
            // Neither empty nor a solid block (a lost fill="none" paints the whole outline's inside).
            const double inked = coverage(image);
            EXPECT_GT(inked, 0.03);
            EXPECT_LT(inked, 0.6);
        }
    }
}

TEST(Symbols, ShapesStayInsideTheirSquare)
{
    // A glyph drawn past its 24×24 box gets cut off: its border pixels would be solid.
    for (const char *name : symbolNames) {
        SCOPED_TRACE(name);
        const QImage image = render(name, 48);
        int solidOnBorder = 0;
        for (int i = 0; i < 48; ++i)
            for (const QPoint p : { QPoint(i, 0), QPoint(i, 47), QPoint(0, i), QPoint(47, i) })
                solidOnBorder += qAlpha(image.pixel(p)) == 255;
        EXPECT_EQ(solidOnBorder, 0);
    }
}

TEST(Symbols, TakeTheTintAndKeepTheShape)
{
    const QColor accent(0xFF, 0x6B, 0x35);
    for (const char *name : symbolNames) {
        SCOPED_TRACE(name);
        const QImage black = render(name, 24);
        const QImage tinted = render(name, 24, accent);
        for (int y = 0; y < 24; ++y)
            for (int x = 0; x < 24; ++x) {
                ASSERT_EQ(qAlpha(tinted.pixel(x, y)), qAlpha(black.pixel(x, y)));
                if (qAlpha(tinted.pixel(x, y)) == 255) {
                    ASSERT_EQ(QColor(tinted.pixel(x, y)), accent);
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
