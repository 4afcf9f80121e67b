// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"
#include "app/CommandLine.h"
#include "model/Contrast.h"
#include "model/ContrastPair.h"
#include "model/NumberText.h"

namespace {

QString hex(const OpaqueColor &c)
{
    return hexText(c.red, c.green, c.blue);
}

// One object, members in a fixed order; numbers unrounded and locale-free.
QByteArray contrastJson(const ContrastPair &pair)
{
    QByteArray out = "{\"foreground\":\"" + hex(pair.foreground).toLatin1() + "\",\"background\":\""
        + hex(pair.background).toLatin1() + "\",\"ratio\":";
    NumberText::appendShortest(out, pair.ratio);
    out += ",\"normalText\":\"" + gradeText(pair.normalText()).toLatin1() + "\",\"largeText\":\""
        + gradeText(pair.largeText()).toLatin1() + "\",\"nonText\":\""
        + nonTextGradeText(pair.nonTextPasses()).toLatin1() + "\",\"apcaLc\":";
    NumberText::appendShortest(out, pair.apcaLc);
    return out + '}';
}

} // namespace

int runContrastCommand(const QStringList &args, CommandContext &context)
{
    bool json = false;
    QList<ColorComponents> colors;
    auto usageError = [&](const QString &message) {
        context.err << "vantle contrast: " << message << Qt::endl;
        return ExitStatus::usage;
    };
    for (const QString &word : args) {
        if (word == u"--json" || word == u"-j") {
            json = true;
        } else if (word == u"--help" || word == u"-h") {
            context.out << CommandLine::tr(
                "Usage: vantle contrast [--json] FOREGROUND BACKGROUND\n"
                "The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on\n"
                "BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,\n"
                "AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc\n"
                "(negative for light on dark). A translucent foreground is drawn on the\n"
                "background first; the background must be opaque.")
                        << '\n'
                        << CommandLine::tr("Colours: %1").arg(acceptedColorsText()) << '\n';
            return ExitStatus::ok;
        } else if (const auto reason = appendColorWord(word, colors)) {
            return usageError(*reason);
        }
    }
    if (colors.size() != 2)
        return usageError(CommandLine::tr(
            "needs a foreground and a background colour, %n given", nullptr, int(colors.size())));
    const ColorComponents &fg = colors[0], &bg = colors[1];
    if (bg.alpha < 1)
        return usageError(CommandLine::tr("the background must be opaque (its alpha is %1)")
                              .arg(NumberText::fixed(bg.alpha, 2)));

    const ContrastPair pair
        = measureContrast(fg.red, fg.green, fg.blue, fg.alpha, { bg.red, bg.green, bg.blue });
    if (json) {
        context.out << contrastJson(pair) << '\n';
    } else {
        context.out << "Foreground\t" << hex(pair.foreground) << "\nBackground\t" << hex(pair.background)
                    << "\nRatio\t" << contrastRatioText(pair.ratio) << "\nNormal text\t"
                    << gradeText(pair.normalText()) << "\nLarge text\t" << gradeText(pair.largeText())
                    << "\nNon-text\t" << nonTextGradeText(pair.nonTextPasses()) << "\nAPCA Lc\t"
                    << NumberText::fixed(pair.apcaLc, 1) << '\t' << apcaUseText(apcaUse(pair.apcaLc)) << '\n';
    }
    context.out.flush();
    return ExitStatus::ok;
}
