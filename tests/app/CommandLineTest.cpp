// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/ColorArgument.h"
#include "app/Translations.h"
#include "history/PaletteExport.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "support/TempSettings.h"

#include <QFile>
#include <QTranslator>
#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CommandRun {
    int status;
    QString out, err;
};

CommandRun run(
    int (*command)(const QStringList &, CommandContext &), const QStringList &args, SettingsStore &store)
{
    CommandRun r;
    QTextStream out(&r.out), err(&r.err);
    CommandContext context { out, err, store };
    r.status = command(args, context);
    out.flush();
    err.flush();
    return r;
}

void removeTranslations()
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
}

// What scripts read (colours, JSON, the fields of `contrast`) is the same in every language.
void inEnglishAndGerman(const std::function<void()> &check)
{
    for (const QString &language : { u"en"_s, u"de"_s }) {
        SCOPED_TRACE(language.toStdString());
        installTranslations({ language });
        check();
        removeTranslations();
    }
}

} // namespace

TEST(FormatCommand, PrintsEachColourInTheAskedFormats)
{
    TempSettings t;
    t.store->setString(PreferenceKeys::colorFormat, QStringLiteral("CSS rgba"));
    const struct {
        QStringList args;
        const char16_t *out;
    } cases[] = {
        { { QStringLiteral("#3366cc") }, u"rgba(51, 102, 204, 1.0)\n" }, // the preferred format
        { { QStringLiteral("--format"), QStringLiteral("hexLower"), QStringLiteral("FF6B36") },
            u"#ff6b36\n" },
        { { QStringLiteral("--format=hex (LOWERCASE)"), QStringLiteral("FF6B36") }, u"#ff6b36\n" },
        // Negative components are colours, not options; several colours form blocks.
        { { QStringLiteral("-f"), QStringLiteral("HSL"), QStringLiteral("-0.01,0,0"),
              QStringLiteral("0.2, 0.4, 0.8, 0.5"), QStringLiteral("--contrast") },
            u"hsl(180, -100%, -1%)\nvs White\t21.1:1\tAAA\nvs Black\t1.0:1\tFail\n\n"
            u"hsl(220, 60%, 50%)\nvs White\t5.4:1\tAA\nvs Black\t3.9:1\tAA Large\n" },
        { { QStringLiteral("--all"), QStringLiteral("1.0,0.42,0.21") },
            u"Hex\t#FF6B36\nHex (lowercase)\t#ff6b36\nRGB\trgb(255, 107, 54)\nRGB (decimal)\t255, 107, 54\n"
            u"HSL\thsl(16, 100%, 61%)\nHSB/HSV\thsb(16, 79%, 100%)\n"
            u"SwiftUI Color\tColor(red: 1.00, green: 0.42, blue: 0.21)\n"
            u"UIColor\tUIColor(red: 1.00, green: 0.42, blue: 0.21, alpha: 1.00)\nCSS rgba\trgba(255, 107, "
            u"54, 1.0)\n" },
    };
    inEnglishAndGerman([&] {
        for (const auto &c : cases) {
            const CommandRun r = run(runFormatCommand, c.args, *t.store);
            EXPECT_EQ(std::tuple(r.status, r.out, r.err), std::tuple(0, QString::fromUtf16(c.out), QString()))
                << c.args.join(u' ').toStdString();
        }
    });
}

TEST(FormatCommand, BadInputPrintsOneLineAndNothingOnStandardOutput)
{
    TempSettings t;
    const QStringList bad[] = { { u"nan,0,0"_s }, { u"1,0,0"_s, u"--format"_s, u"Hexx"_s }, { u"--format"_s },
        { u"--bogus"_s, u"1,0,0"_s }, {}, { u"--all"_s, u"--format=hsl"_s, u"1,0,0"_s },
        { u"1,0,0"_s, u"#+12345"_s } };
    for (const QStringList &args : bad) {
        const CommandRun r = run(runFormatCommand, args, *t.store);
        EXPECT_EQ(std::tuple(r.status, r.out, r.err.count(u'\n')), std::tuple(2, QString(), 1))
            << args.join(u' ').toStdString() << ": " << r.err.toStdString();
    }
    EXPECT_TRUE(
        run(runFormatCommand, { u"1,0,0"_s, u"--format"_s, u"Hexx"_s }, *t.store).err.contains(u"Hexx"));
}

// Every text Vantle writes reads back as a colour with that text; components are read exactly.
TEST(ColorArgument, ReadsEveryTextVantleWritesAndComponentsExactly)
{
    const auto c = parseColorArgument(QStringLiteral("0.1,0.30000000000000004,1e-3,+0.5")).value();
    EXPECT_EQ(std::tuple(c.red, c.green, c.blue, c.alpha), std::tuple(0.1, 0.30000000000000004, 0.001, 0.5));
    for (const double alpha : { 1.0, 0.75 }) {
        for (const ColorFormat format : allColorFormats) {
            const QString text = formatColor(1.0, 0.42, 0.21, alpha, format);
            const auto read = parseColorArgument(text);
            ASSERT_TRUE(read) << text.toStdString();
            // Written again in its own format, the colour read gives the same text.
            EXPECT_EQ(formatColor(read->red, read->green, read->blue, read->alpha, format), text);
        }
    }
    const struct {
        const char *text, *hex;
    } more[] = { { "#f60", "#FF6600" }, { "1,0,0", "#FF0000" }, { "1, 1, 2", "#010102" },
        { "HSV(120, 50, 50)", "#408040" }, { "hsl(-120, 100%, 50%)", "#0000FF" } };
    for (const auto &m : more) {
        const auto read = parseColorArgument(QLatin1String(m.text));
        EXPECT_EQ(read ? hexText(read->red, read->green, read->blue) : QString(), QLatin1String(m.hex))
            << m.text;
    }
    for (const char *bad :
        { "#f6", "f60", "rgb(1, 2)", "Color(green: 1, red: 0, blue: 0)", "hsl(1, 2%, x%)", "(1,2,3)" })
        EXPECT_FALSE(parseColorArgument(QLatin1String(bad))) << bad;
}

TEST(ContrastCommand, PrintsTheMeasureInPlainLinesOrOneObject)
{
    TempSettings t;
    inEnglishAndGerman([&] {
        const CommandRun plain = run(
            runContrastCommand, { QStringLiteral("#888"), QStringLiteral("rgb(255, 255, 255)") }, *t.store);
        EXPECT_EQ(std::tuple(plain.status, plain.out, plain.err),
            std::tuple(0,
                QStringLiteral("Foreground\t#888888\nBackground\t#FFFFFF\nRatio\t3.5:1\nNormal text\tFail\n"
                               "Large text\tAA\nNon-text\tPass\nAPCA Lc\t63.1\tlarge or bold text\n"),
                QString()));
        // Translucent black on white is drawn as grey first; light on dark gives a negative Lc.
        const CommandRun json = run(runContrastCommand,
            { QStringLiteral("--json"), QStringLiteral("0,0,0,0.5"), QStringLiteral("#FFFFFF") }, *t.store);
        EXPECT_TRUE(
            json.out.startsWith(u"{\"foreground\":\"#808080\",\"background\":\"#FFFFFF\",\"ratio\":3.97"));
        EXPECT_TRUE(json.out.contains(
            u"\"normalText\":\"Fail\",\"largeText\":\"AA\",\"nonText\":\"Pass\",\"apcaLc\":67.13"));
        EXPECT_TRUE(run(runContrastCommand,
            { QStringLiteral("-j"), QStringLiteral("#fff"), QStringLiteral("#888") }, *t.store)
                        .out.contains(u"\"apcaLc\":-68.54"));
    });

    const QStringList bad[]
        = { { u"#fff"_s }, { u"#fff"_s, u"#000"_s, u"#888"_s }, { u"#fff"_s, u"rgba(0, 0, 0, 0.5)"_s },
              { u"#fff"_s, u"--bogus"_s, u"#000"_s }, { u"#ggg"_s, u"#000"_s } };
    for (const QStringList &args : bad) {
        const CommandRun r = run(runContrastCommand, args, *t.store);
        EXPECT_EQ(std::tuple(r.status, r.out, r.err.count(u'\n')), std::tuple(2, QString(), 1))
            << args.join(u' ').toStdString();
    }
}

namespace {

class ExportCommandTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        PickedColor sunset = PickedColor::fromSample(1.0, 0.42, 0.21, 1.0);
        sunset.name = QStringLiteral("Sun/set");
        sunset.isPinned = true;
        history = { PickedColor::fromSample(0.2, 0.4, 0.8, 1.0), sunset };
        t.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
    }
    TempSettings t;
    QList<PickedColor> history;
};

TEST_F(ExportCommandTest, PrintsTheStoredHistoryInEitherLayout)
{
    t.store->setString(PreferenceKeys::colorFormat, QStringLiteral("HSL"));
    struct Case {
        QStringList args;
        QByteArray expected;
    };
    const Case cases[] = {
        { {}, "hsl(220, 60%, 50%)\nSun/set: hsl(16, 100%, 61%)\n" },
        { { QStringLiteral("--pinned") }, "Sun/set: hsl(16, 100%, 61%)\n" },
        { { QStringLiteral("--json") }, exportJSON(history) + '\n' },
        { { QStringLiteral("-j"), QStringLiteral("-p") }, exportJSON({ history.at(1) }) + '\n' },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.args.join(u' ').toStdString());
        const CommandRun r = run(runExportCommand, c.args, *t.store);
        EXPECT_EQ(r.status, ExitStatus::ok);
        EXPECT_EQ(r.out.toUtf8(), c.expected);
        EXPECT_EQ(r.err, QString());
    }
}

// Whole files or none is AtomicFileTest's; here, both spellings of the option and the message.
TEST_F(ExportCommandTest, WritesTheFileNamedByEitherSpelling)
{
    const QString path = t.dir.filePath(QStringLiteral("palette.json"));
    for (const QStringList &args : { QStringList { QStringLiteral("--json"), QStringLiteral("-o"), path },
             QStringList { QStringLiteral("--output=") + path, QStringLiteral("--json") } }) {
        QFile::remove(path);
        const CommandRun r = run(runExportCommand, args, *t.store);
        EXPECT_EQ(r.status, ExitStatus::ok);
        EXPECT_EQ(r.out, QString());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == exportJSON(history));
    }
    const CommandRun r = run(runExportCommand, { QStringLiteral("-o"), t.dir.path() }, *t.store);
    EXPECT_EQ(r.status, ExitStatus::failure);
    EXPECT_TRUE(r.err.startsWith(QStringLiteral("vantle export: cannot write \"%1\": ").arg(t.dir.path())));
}

TEST_F(ExportCommandTest, RefusesWhatItCannotDo)
{
    EXPECT_EQ(run(runExportCommand, { QStringLiteral("--pdf") }, *t.store).status, ExitStatus::usage);
    EXPECT_EQ(run(runExportCommand, { QStringLiteral("-o") }, *t.store).status, ExitStatus::usage);

    t.store->setData(PreferenceKeys::colorHistory, "{not json");
    const CommandRun r = run(runExportCommand, { QStringLiteral("--json") }, *t.store);
    EXPECT_EQ(r.status, ExitStatus::failure);
    EXPECT_EQ(r.out, QString());
    EXPECT_TRUE(r.err.contains(t.store->dataFilePath(PreferenceKeys::colorHistory))) << qPrintable(r.err);

    t.store->removeObject(PreferenceKeys::colorHistory);
    EXPECT_EQ(run(runExportCommand, { QStringLiteral("--json") }, *t.store).out, u"[\n\n]\n");
    EXPECT_EQ(run(runExportCommand, {}, *t.store).out, QString());
}

// English listed before a translation wins; a language without one is passed over; the
// messages for people are translated.
TEST(CommandLineLanguage, FollowsTheFirstTranslatedLanguage)
{
    const std::pair<QStringList, const char16_t *> choices[]
        = { { { u"en-GB"_s, u"de"_s }, u"" }, { { u"C"_s }, u"" }, { { u"xx"_s, u"de-AT"_s }, u"de_AT" } };
    for (const auto &[asked, installed] : choices) {
        EXPECT_EQ(installTranslations(asked), QString::fromUtf16(installed));
        removeTranslations();
    }
    TempSettings t;
    installTranslations({ u"de"_s });
    EXPECT_TRUE(
        run(runFormatCommand, { u"zz"_s }, *t.store).err.startsWith(u"vantle format: die Farbe „zz“"));
    removeTranslations();
}

} // namespace
