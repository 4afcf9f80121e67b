// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorDetailView.h"
#include "screens/ContrastBadge.h"
#include "screens/FormatLine.h"
#include "screens/Theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

namespace {

PickedColor makeColor(double r, double g, double b, std::optional<QString> name = std::nullopt)
{
    PickedColor color = PickedColor::fromSample(r, g, b, 1.0);
    color.name = std::move(name);
    return color;
}

struct Copy {
    QUuid id;
    ColorFormat format;
};

// A detail screen whose delayed resets are collected, so a test decides when 1.5 s have passed.
struct DetailHarness {
    explicit DetailHarness(const PickedColor &color)
        : view(
            color,
            [this](const PickedColor &c, ColorFormat f) {
                copies.append({ c.id, f });
            },
            [this] { ++backs; })
    {
        view.setScheduler([this](int milliseconds, std::function<void()> job) {
            EXPECT_EQ(milliseconds, 1500);
            pending.append(std::move(job));
        });
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    void click(ColorFormat format) { QTest::mouseClick(view.line(format), Qt::LeftButton); }
    QList<ColorFormat> checked() const
    {
        QList<ColorFormat> result;
        for (const ColorFormat format : allColorFormats) {
            if (view.line(format)->markSymbol() == u"checkmark")
                result.append(format);
        }
        return result;
    }

    QList<Copy> copies;
    int backs = 0;
    QList<std::function<void()>> pending;
    ColorDetailView view;
};

} // namespace

TEST(ColorDetailView, ShowsTheNineFormatsInDeclaredOrder)
{
    const PickedColor color = makeColor(1.0, 0.42, 0.21);
    DetailHarness harness(color);
    const QList<FormatLine *> lines = harness.view.findChildren<FormatLine *>();
    ASSERT_EQ(lines.size(), 9);
    for (std::size_t i = 0; i < allColorFormats.size(); ++i) {
        const FormatLine *line = harness.view.line(allColorFormats[i]);
        EXPECT_EQ(line->text(), rawValue(allColorFormats[i]));
        EXPECT_EQ(line->value(), color.formatted(allColorFormats[i]));
        EXPECT_EQ(line->markSymbol(), u"doc.on.doc");
        if (i > 0) { // stacked top to bottom in declaration order
            EXPECT_GT(line->mapTo(&harness.view, QPoint()).y(),
                harness.view.line(allColorFormats[i - 1])->mapTo(&harness.view, QPoint()).y());
        }
    }
}

TEST(ColorDetailView, NameAppearsOnlyWhenPresent)
{
    const struct {
        std::optional<QString> name;
        bool shown;
    } cases[] = { { std::nullopt, false }, { QString(), false }, { QStringLiteral("Brand"), true } };
    for (const auto &c : cases) {
        DetailHarness harness(makeColor(0.2, 0.4, 0.8, c.name));
        EXPECT_EQ(harness.view.findChild<QWidget *>(QStringLiteral("nameLabel")) != nullptr, c.shown);
    }
}

TEST(ColorDetailView, ClickCopiesThatFormatAndMovesTheCheckMark)
{
    const PickedColor color = makeColor(1.0, 0.42, 0.21);
    DetailHarness harness(color);

    harness.click(ColorFormat::hex);
    ASSERT_EQ(harness.copies.size(), 1);
    EXPECT_EQ(harness.copies[0].id, color.id);
    EXPECT_EQ(harness.copies[0].format, ColorFormat::hex);
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::hex });

    harness.click(ColorFormat::rgb);
    EXPECT_EQ(harness.copies.last().format, ColorFormat::rgb);
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::rgb });

    // The Hex reset comes first and must leave the newer RGB mark alone.
    ASSERT_EQ(harness.pending.size(), 2);
    harness.pending[0]();
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::rgb });
    harness.pending[1]();
    EXPECT_TRUE(harness.checked().isEmpty());
    EXPECT_EQ(harness.view.copiedFormat(), std::nullopt);
}

TEST(ColorDetailView, SameFormatTwiceClearsWithTheFirstReset)
{
    DetailHarness harness(makeColor(0.5, 0.5, 0.5));
    harness.click(ColorFormat::css);
    harness.click(ColorFormat::css);
    ASSERT_EQ(harness.pending.size(), 2);
    harness.pending[0]();
    EXPECT_TRUE(harness.checked().isEmpty());
}

TEST(ColorDetailView, KeyboardCopiesAndBacksOut)
{
    DetailHarness harness(makeColor(0.5, 0.5, 0.5));
    harness.view.line(ColorFormat::hsl)->setFocus();
    QTest::keyClick(harness.view.line(ColorFormat::hsl), Qt::Key_Down);
    EXPECT_TRUE(harness.view.line(ColorFormat::hsb)->hasFocus());
    QTest::keyClick(harness.view.line(ColorFormat::hsb), Qt::Key_Return);
    ASSERT_EQ(harness.copies.size(), 1);
    EXPECT_EQ(harness.copies[0].format, ColorFormat::hsb);

    QTest::keyClick(harness.view.line(ColorFormat::hsb), Qt::Key_Escape);
    EXPECT_EQ(harness.backs, 1);
    QTest::mouseClick(
        harness.view.findChild<QAbstractButton *>(QStringLiteral("backButton")), Qt::LeftButton);
    EXPECT_EQ(harness.backs, 2);
}

TEST(ColorDetailView, CheckMarkResetsAfterOneAndAHalfSeconds)
{
    // The real timer: not before about 1.5 s (coarse timers may fire up to 5 % early), and
    // surely within a generous bound.
    ColorDetailView view(
        makeColor(0.1, 0.2, 0.3), [](const PickedColor &, ColorFormat) {}, [] {});
    view.show();
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(view.line(ColorFormat::uiColor), Qt::LeftButton);
    ASSERT_EQ(view.line(ColorFormat::uiColor)->markSymbol(), u"checkmark");
    QTRY_VERIFY_WITH_TIMEOUT(!view.copiedFormat().has_value(), 10000);
    EXPECT_GE(clock.elapsed(), 1400);
    EXPECT_EQ(view.line(ColorFormat::uiColor)->markSymbol(), u"doc.on.doc");
}

TEST(ColorDetailView, ContrastBadgesForWhiteBlackAndGrey)
{
    const QPalette palette = QApplication::palette();
    const QColor green = Theme::green(palette);
    const QColor orange = Theme::orange(palette);
    const QColor red = Theme::red(palette);
    const struct {
        double grey;
        const char *white, *whiteLevel;
        QColor whiteColor;
        const char *black, *blackLevel;
        QColor blackColor;
    } cases[] = {
        { 1.0, "1.0:1", "Fail", red, "21.0:1", "AAA", green },
        { 0.0, "21.0:1", "AAA", green, "1.0:1", "Fail", red },
        { 0.5, "4.0:1", "AA Large", orange, "5.3:1", "AA", green },
        // Shown rounded up, levelled on the unrounded ratio.
        { 0.466, "4.5:1", "AA Large", orange, "4.7:1", "AA", green },
        { 0.345, "7.1:1", "AAA", green, "3.0:1", "Fail", red },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.grey);
        DetailHarness harness(makeColor(c.grey, c.grey, c.grey));
        const ContrastBadge *white = harness.view.whiteBadge();
        const ContrastBadge *black = harness.view.blackBadge();
        EXPECT_EQ(white->label(), u"vs White");
        EXPECT_EQ(white->ratio(), QLatin1String(c.white));
        EXPECT_EQ(white->level(), QLatin1String(c.whiteLevel));
        EXPECT_EQ(white->levelColor(), c.whiteColor);
        EXPECT_EQ(black->label(), u"vs Black");
        EXPECT_EQ(black->ratio(), QLatin1String(c.black));
        EXPECT_EQ(black->level(), QLatin1String(c.blackLevel));
        EXPECT_EQ(black->levelColor(), c.blackColor);
        EXPECT_LT(white->mapTo(&harness.view, QPoint()).y(), black->mapTo(&harness.view, QPoint()).y());
    }
}

TEST(ContrastBadge, LevelColours)
{
    const QPalette palette = QApplication::palette();
    const struct {
        const char *level;
        QColor color;
    } cases[] = {
        { "AAA", Theme::green(palette) },
        { "AA", Theme::green(palette) },
        { "AA Large", Theme::orange(palette) },
        { "Fail", Theme::red(palette) },
    };
    for (const auto &c : cases) {
        const ContrastBadge badge(
            QStringLiteral("vs White"), QStringLiteral("4.5:1"), QLatin1String(c.level));
        EXPECT_EQ(badge.levelColor(), c.color) << c.level;
    }
    EXPECT_NE(Theme::green(palette), Theme::orange(palette));
    EXPECT_NE(Theme::orange(palette), Theme::red(palette));
}
