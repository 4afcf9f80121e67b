// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"
#include "app/CommandLine.h"
#include "services/PreferenceKeys.h"
#include "support/TempSettings.h"

#include <gtest/gtest.h>

namespace {

struct CommandRun {
    int status;
    QString out, err;
};

CommandRun runFormat(const QStringList &args, SettingsStore &store)
{
    CommandRun run;
    QTextStream out(&run.out), err(&run.err);
    CommandContext context { out, err, store };
    run.status = runFormatCommand(args, context);
    out.flush();
    err.flush();
    return run;
}

} // namespace

TEST(FormatCommand, AllFormatsWithContrast)
{
    TempSettings t;
    const CommandRun run = runFormat(
        { QStringLiteral("--all"), QStringLiteral("--contrast"), QStringLiteral("1.0,0.42,0.21") }, *t.store);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, QString());
    EXPECT_EQ(run.out,
        QStringLiteral("Hex\t#FF6B36\n"
                       "Hex (lowercase)\t#ff6b36\n"
                       "RGB\trgb(255, 107, 54)\n"
                       "RGB (decimal)\t255, 107, 54\n"
                       "HSL\thsl(16, 100%, 61%)\n"
                       "HSB/HSV\thsb(16, 79%, 100%)\n"
                       "SwiftUI Color\tColor(red: 1.00, green: 0.42, blue: 0.21)\n"
                       "UIColor\tUIColor(red: 1.00, green: 0.42, blue: 0.21, alpha: 1.00)\n"
                       "CSS rgba\trgba(255, 107, 54, 1.0)\n"
                       "vs White\t2.8:1\tFail\n"
                       "vs Black\t7.4:1\tAAA\n"));
}

TEST(FormatCommand, PreferredFormatNamedFormatsAndBlocks)
{
    TempSettings t;
    t.store->setString(PreferenceKeys::colorFormat, QStringLiteral("CSS rgba"));
    EXPECT_EQ(runFormat({ QStringLiteral("#3366cc") }, *t.store).out, u"rgba(51, 102, 204, 1.0)\n");
    EXPECT_EQ(runFormat({ QStringLiteral("--format"), QStringLiteral("hexLower"), QStringLiteral("FF6B36") },
                  *t.store)
                  .out,
        u"#ff6b36\n");
    EXPECT_EQ(
        runFormat({ QStringLiteral("--format=hex (LOWERCASE)"), QStringLiteral("FF6B36") }, *t.store).out,
        u"#ff6b36\n");
    // Negative components are colours, not options; several colours form blocks.
    EXPECT_EQ(runFormat({ QStringLiteral("-f"), QStringLiteral("HSL"), QStringLiteral("-0.01,0,0"),
                            QStringLiteral("0.2, 0.4, 0.8, 0.5"), QStringLiteral("--contrast") },
                  *t.store)
                  .out,
        u"hsl(180, -100%, -1%)\nvs White\t21.1:1\tAAA\nvs Black\t1.0:1\tFail\n\n"
        u"hsl(220, 60%, 50%)\nvs White\t5.4:1\tAA\nvs Black\t3.9:1\tAA Large\n");
}

TEST(FormatCommand, BadInputPrintsOneLineAndNothingOnStandardOutput)
{
    TempSettings t;
    const QStringList bad[] = {
        { QStringLiteral("#FF6B3") },
        { QStringLiteral("GGGGGG") },
        { QStringLiteral("1,2") },
        { QStringLiteral("nan,0,0") },
        { QStringLiteral("1,0,0"), QStringLiteral("--format"), QStringLiteral("Hexx") },
        { QStringLiteral("--format") },
        { QStringLiteral("--bogus"), QStringLiteral("1,0,0") },
        {},
        { QStringLiteral("--all"), QStringLiteral("--format=hsl"), QStringLiteral("1,0,0") },
        { QStringLiteral("1,0,0"), QStringLiteral("#+12345") },
    };
    for (const QStringList &args : bad) {
        const CommandRun run = runFormat(args, *t.store);
        EXPECT_EQ(run.status, 2) << args.join(u' ').toStdString();
        EXPECT_EQ(run.out, QString()) << args.join(u' ').toStdString();
        EXPECT_EQ(run.err.count(u'\n'), 1) << run.err.toStdString();
    }
    EXPECT_TRUE(
        runFormat({ QStringLiteral("1,0,0"), QStringLiteral("--format"), QStringLiteral("Hexx") }, *t.store)
            .err.contains(u"Hexx"));
}

TEST(ColorArgument, ComponentsAreReadExactly)
{
    const auto c = parseColorArgument(QStringLiteral("0.1,0.30000000000000004,1e-3,+0.5"));
    ASSERT_TRUE(c);
    EXPECT_EQ(c->red, 0.1);
    EXPECT_EQ(c->green, 0.30000000000000004);
    EXPECT_EQ(c->blue, 0.001);
    EXPECT_EQ(c->alpha, 0.5);
    const auto hex = parseColorArgument(QStringLiteral("#ff6B36"));
    ASSERT_TRUE(hex);
    EXPECT_EQ(hex->green, 107 / 255.0);
    EXPECT_EQ(hex->alpha, 1.0);
}
