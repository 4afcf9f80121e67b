// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"
#include "app/CommandLine.h"
#include "model/Contrast.h"
#include "model/PickedColor.h"
#include "services/SettingsViewModel.h"

#include <QList>

namespace {

QString contrastLine(const QString &label, double luminance, double reference)
{
    const double ratio = contrastRatio(luminance, reference);
    return label + u'\t' + contrastRatioText(ratio) + u'\t' + contrastLevel(ratio);
}

} // namespace

int runFormatCommand(const QStringList &args, CommandContext &context)
{
    std::optional<ColorFormat> format;
    bool all = false;
    bool contrast = false;
    QList<ColorComponents> colors;

    auto usageError = [&](const QString &message) {
        context.err << "vantle format: " << message << Qt::endl;
        return ExitStatus::usage;
    };

    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &word = args[i];
        const OptionWord option = splitOptionWord(word);
        if (option.name == u"--format" || option.name == u"-f") {
            QString name;
            if (option.inlineValue)
                name = *option.inlineValue;
            else if (i + 1 < args.size())
                name = args[++i];
            else
                return usageError(
                    CommandLine::tr("--format needs a format name; accepted: %1").arg(acceptedFormatsText()));
            format = parseFormatArgument(name);
            if (!format)
                return usageError(
                    CommandLine::tr("unknown format \"%1\"; accepted: %2").arg(name, acceptedFormatsText()));
        } else if (word == u"--all" || word == u"-a") {
            all = true;
        } else if (word == u"--contrast" || word == u"-c") {
            contrast = true;
        } else if (word == u"--help" || word == u"-h") {
            context.out << CommandLine::tr(
                "Usage: vantle format [--format NAME | --all] [--contrast] COLOR...")
                        << '\n'
                        << CommandLine::tr("Colours: %1").arg(acceptedColorsText()) << '\n'
                        << CommandLine::tr("Formats: %1").arg(acceptedFormatsText()) << '\n';
            return ExitStatus::ok;
        } else if (const auto reason = appendColorWord(word, colors)) {
            return usageError(*reason);
        }
    }
    if (all && format)
        return usageError(CommandLine::tr("--format and --all cannot be used together"));
    if (colors.isEmpty())
        return usageError(CommandLine::tr("no colour given; accepted: %1").arg(acceptedColorsText()));

    const ColorFormat preferred = format.value_or(SettingsViewModel::currentFormat(context.store));
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const ColorComponents &c = colors[i];
        if (i > 0)
            context.out << '\n';
        if (all) {
            for (ColorFormat f : allColorFormats)
                context.out << rawValue(f) << '\t' << formatColor(c.red, c.green, c.blue, c.alpha, f) << '\n';
        } else {
            context.out << formatColor(c.red, c.green, c.blue, c.alpha, preferred) << '\n';
        }
        if (contrast) {
            const double luminance = relativeLuminance(c.red, c.green, c.blue);
            context.out << contrastLine(QStringLiteral("vs White"), luminance, whiteLuminance) << '\n'
                        << contrastLine(QStringLiteral("vs Black"), luminance, blackLuminance) << '\n';
        }
    }
    context.out.flush();
    return ExitStatus::ok;
}
