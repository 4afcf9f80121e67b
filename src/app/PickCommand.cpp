// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"
#include "app/CommandLine.h"
#include "platform/PlatformBackends.h"
#include "services/SettingsViewModel.h"

#include <QCoreApplication>

// vantle pick --print: the sampler runs in this process, the colour goes to standard output;
// neither the history nor the clipboard is touched.

int runPickPrintCommand(const QStringList &args, CommandContext &context)
{
    std::optional<ColorFormat> format;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const OptionWord option = splitOptionWord(args[i]);
        if (option.name == u"--print") {
            continue;
        } else if (option.name == u"--format" || option.name == u"-f") {
            QString name;
            if (option.inlineValue)
                name = *option.inlineValue;
            else if (i + 1 < args.size())
                name = args[++i];
            else {
                context.err << "vantle pick: "
                            << CommandLine::tr("--format needs a format name; accepted: %1")
                                   .arg(acceptedFormatsText())
                            << Qt::endl;
                return ExitStatus::usage;
            }
            format = parseFormatArgument(name);
            if (!format) {
                context.err
                    << "vantle pick: "
                    << CommandLine::tr("unknown format \"%1\"; accepted: %2").arg(name, acceptedFormatsText())
                    << Qt::endl;
                return ExitStatus::usage;
            }
        } else {
            context.err << "vantle pick: " << CommandLine::tr("unknown option \"%1\"").arg(args[i])
                        << Qt::endl;
            return ExitStatus::usage;
        }
    }

    std::unique_ptr<ScreenColorSampler> sampler = makeScreenColorSampler(DesktopSession::current());
    int status = ExitStatus::failure;
    // The loupe's label already says what will be printed.
    sampler->pick(format.value_or(SettingsViewModel::currentFormat(context.store)),
        [&](std::optional<SampledColor> color) {
            if (color) {
                // Read when the pick ends, as the tray program does, so a change made meanwhile counts.
                const ColorFormat shown = format.value_or(SettingsViewModel::currentFormat(context.store));
                context.out << formatColor(color->red, color->green, color->blue, color->alpha, shown)
                            << Qt::endl;
                status = ExitStatus::ok;
            }
            QCoreApplication::exit(status);
        });
    QCoreApplication::exec();
    return status;
}
