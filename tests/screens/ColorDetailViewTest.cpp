// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorDetailView.h"
#include "screens/ColorListView.h"
#include "screens/ContrastComparisonView.h"
#include "screens/ElidedLabel.h"
#include "screens/FormatLine.h"
#include "support/Fakes.h"

#include <QComboBox>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A detail screen whose delayed resets are collected, so a test decides when 1.5 s have passed.
struct DetailHarness {
    static void nothing() { }
    void copied(const PickedColor &c, ColorFormat f) { copies.append({ c.id, f }); }
    explicit DetailHarness(const PickedColor &color, const QList<PickedColor> &history = {})
        : view(color, history, std::bind_front(&DetailHarness::copied, this), nothing)
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
        for (const ColorFormat format : allColorFormats)
            if (view.line(format)->markSymbol() == u"checkmark")
                result.append(format);
        return result;
    }

    QList<std::pair<QUuid, ColorFormat>> copies;
    QList<std::function<void()>> pending;
    ColorDetailView view;
};

} // namespace

TEST(ColorDetailView, ClickCopiesThatFormatAndOnlyTheNewestResetClearsTheMark)
{
    const PickedColor color = makeColor(1.0, 0.42, 0.21);
    DetailHarness harness(color);
    harness.click(ColorFormat::hex);
    EXPECT_EQ(harness.copies, (QList { std::pair(color.id, ColorFormat::hex) }));
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::hex });

    harness.click(ColorFormat::rgb);
    EXPECT_EQ(harness.copies.last().second, ColorFormat::rgb);
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::rgb });
    // The Hex reset comes first and must leave the newer RGB mark alone.
    ASSERT_EQ(harness.pending.size(), 2);
    harness.pending[0]();
    EXPECT_EQ(harness.checked(), QList<ColorFormat> { ColorFormat::rgb });
    harness.pending[1]();
    EXPECT_TRUE(harness.checked().isEmpty());

    // The same format twice: the first reset already clears it.
    harness.click(ColorFormat::css);
    harness.click(ColorFormat::css);
    harness.pending[2]();
    EXPECT_TRUE(harness.checked().isEmpty());
    EXPECT_EQ(harness.view.copiedFormat(), std::nullopt);
}

// White (the longest value in every format) with a 40-character name, compared with another long
// name, in the popup's width: every text drawn whole, measured afresh; code texts wrap to two lines.
TEST(ColorDetailView, TheLongestTextsAreDrawnWholeInThePopupsWidth)
{
    const PickedColor white = makeColor(1, 1, 1, false, u"Warm sunset orange for the spring banner"_s);
    DetailHarness harness(
        white, { white, makeColor(0, 0, 0, false, u"Deep night blue for the winter banner"_s) });
    harness.view.setFixedWidth(ColorListView::viewWidth);
    harness.view.adjustSize();
    for (const ElidedLabel *label : harness.view.findChildren<ElidedLabel *>()) {
        SCOPED_TRACE(label->text().toStdString());
        if (label->hasHeightForWidth())
            EXPECT_LE(label->heightForWidth(label->width()), label->height());
        else
            EXPECT_LE(QFontMetricsF(label->shownFont()).horizontalAdvance(label->text()), label->width());
    }
}

// The comparison starts with the colour picked just before the shown one as the text on it (for
// the oldest, the newest other), follows the menu from the keyboard and reads every result again
// as a sentence (the swap from the keyboard is accessible.py's).
TEST(ColorDetailView, ComparesWithThePreviousPickFromTheKeyboard)
{
    PickedColor grey = makeColor(0x88 / 255., 0x88 / 255., 0x88 / 255.), white = makeColor(1, 1, 1),
                black = makeColor(0, 0, 0, true);
    grey.timestamp = 30;
    white.timestamp = 20;
    black.timestamp = 10;
    const QList<PickedColor> history { grey, white, black }; // newest first
    // The closest pick before (not black, also before); for the oldest, the newest.
    for (const auto &[shown, other] : { std::pair(grey, white), std::pair(black, grey) })
        EXPECT_EQ(ContrastComparisonView::defaultOther(shown, history)->id, other.id);
    EXPECT_EQ(DetailHarness(grey).view.comparison()->otherMenu(), nullptr); // nothing to compare with

    DetailHarness harness(white, history);
    ContrastComparisonView *comparison = harness.view.comparison();
    EXPECT_EQ(comparison->spokenResults(),
        QStringList({ u"Contrast ratio 21.0 to 1"_s, u"Normal text: AAA, 21.0 to 1"_s,
            u"Large text: AAA, 21.0 to 1"_s, u"Non-text: Pass, 21.0 to 1"_s,
            u"APCA: Lc 106.0, body text"_s }));
    // Pinned black, then past the separator to the recent grey (its grades are ContrastPair's).
    QTest::keyClick(comparison->otherMenu(), Qt::Key_Down);
    EXPECT_EQ(comparison->spokenResults().last(), u"APCA: Lc 63.1, large or bold text");
}
