// SPDX-License-Identifier: GPL-3.0-or-later
// `vantle format`: each line of the input is one command-line word. Every colour the parser
// accepts must survive its own hex text, and the whole command must answer without crashing.
#include "FuzzCheck.h"

#include "app/ColorArgument.h"
#include "app/CommandLine.h"
#include "model/ColorFormat.h"
#include "services/SettingsStore.h"

#include <QTemporaryDir>
#include <QTextStream>

void fuzzOne(const QByteArray &input)
{
    static QTemporaryDir folder;
    static SettingsStore store(folder.filePath(QStringLiteral("Vantle.conf")));

    const QStringList words = QString::fromUtf8(input).split(QLatin1Char('\n'));
    for (const QString &word : words) {
        if (const std::optional<ColorFormat> format = parseFormatArgument(word))
            FUZZ_CHECK(parseFormatArgument(rawValue(*format)) == format);
        const std::optional<ColorComponents> color = parseColorArgument(word);
        if (!color)
            continue;
        const std::optional<ColorComponents> again
            = parseColorArgument(hexText(color->red, color->green, color->blue));
        FUZZ_CHECK(again.has_value());
        for (auto channel : { &ColorComponents::red, &ColorComponents::green, &ColorComponents::blue })
            FUZZ_CHECK(eightBitChannel((*again).*channel) == eightBitChannel((*color).*channel));
        for (ColorFormat format : allColorFormats)
            FUZZ_CHECK(!formatColor(color->red, color->green, color->blue, color->alpha, format).isEmpty());
    }
    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    CommandContext context { outStream, errStream, store };
    const int status = runFormatCommand(words, context);
    // A refusal always says why; an answer always says something.
    FUZZ_CHECK(status == ExitStatus::ok ? !out.isEmpty() : status == ExitStatus::usage && !err.isEmpty());
}
