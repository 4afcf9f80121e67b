// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Theme.h"
#include "model/Contrast.h"

#include <QApplication>
#include <QPalette>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

double ratio(const QColor &a, const QColor &b)
{
    return contrastRatio(relativeLuminance(a.redF(), a.greenF(), a.blueF()),
        relativeLuminance(b.redF(), b.greenF(), b.blueF()));
}

QPalette palette(QColor text, QColor window)
{
    QPalette p;
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::Base, window);
    return p;
}

} // namespace

// With the desktop asking for higher contrast, every text Vantle draws reaches 7:1 against what it
// is drawn on: quiet shades, the hues used as symbols and menu texts, and the white or black text on
// pick button, tabs and level capsules. Ordinary palettes are the harder case: black and white are
// further from any hue.
TEST(Theme, HighContrastTextsReachSevenToOne)
{
    Theme::setHighContrast(true);
    const struct {
        const char *name;
        QPalette palette;
    } palettes[] = {
        { "ordinary light", palette(QColor(0x20, 0x20, 0x20), QColor(0xEF, 0xEF, 0xEF)) },
        { "ordinary dark", palette(QColor(0xE8, 0xE8, 0xE8), QColor(0x2B, 0x2B, 0x2B)) },
    };
    for (const auto &[name, pal] : palettes) {
        SCOPED_TRACE(name);
        const QColor window = pal.color(QPalette::Window);
        for (const QColor &text : { Theme::secondaryText(pal), Theme::tertiaryText(pal) })
            EXPECT_GE(ratio(text, window), 7.0) << qPrintable(text.name(QColor::HexArgb));
        for (const QColor &hue : { Theme::orange(pal), Theme::green(pal), Theme::red(pal), Theme::accent(pal),
                 Theme::destructive(pal), Theme::levelColor(u"AA Large"_s, pal) }) {
            EXPECT_GE(ratio(hue, window), 7.0) << qPrintable(hue.name()) << " on the window";
            EXPECT_GE(ratio(Theme::onAccent(pal), hue), 7.0) << "text on " << qPrintable(hue.name());
        }
    }
    Theme::setHighContrast(false);
}

// The desktop's wish in the order a person switches it; every window follows, and the palette
// the desktop's Qt theme gave comes back whole once the wish matches it or goes.
TEST(Theme, WindowsFollowTheDesktopsLightOrDarkWish)
{
    const QPalette given = QApplication::palette();
    ASSERT_FALSE(Theme::isDark(given)) << "the offscreen platform's palette is light";
    const struct {
        std::optional<bool> wish;
        bool isDark;
    } steps[] = { { true, true }, { true, true }, { false, false }, { true, true }, { std::nullopt, false } };
    for (const auto &step : steps) {
        Theme::followColorScheme(step.wish);
        EXPECT_EQ(Theme::isDark(QApplication::palette()), step.isDark);
        if (!step.isDark) {
            EXPECT_EQ(QApplication::palette(), given);
        }
    }
}
