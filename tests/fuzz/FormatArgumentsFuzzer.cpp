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

namespace {

void checkColor(const QString &word)
{
    const std::optional<ColorComponents> color = parseColorArgument(word);
    if (!color)
        return;
    const QString hex = hexText(color->red, color->green, color->blue);
    const std::optional<ColorComponents> again = parseColorArgument(hex);
    FUZZ_CHECK(again.has_value());
    FUZZ_CHECK(eightBitChannel(again->red) == eightBitChannel(color->red));
    FUZZ_CHECK(eightBitChannel(again->green) == eightBitChannel(color->green));
    FUZZ_CHECK(eightBitChannel(again->blue) == eightBitChannel(color->blue));
    for (ColorFormat format : allColorFormats)
        FUZZ_CHECK(!formatColor(color->red, color->green, color->blue, color->alpha, format).isEmpty());
}

void checkFormat(const QString &word)
{
    const std::optional<ColorFormat> format = parseFormatArgument(word);
    if (format)
        FUZZ_CHECK(parseFormatArgument(rawValue(*format)) == format);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir folder;
    static SettingsStore store(folder.filePath(QStringLiteral("Vantle.conf")));

    const QString text
        = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QStringList words = text.split(QLatin1Char('\n'));
    for (const QString &word : words) {
        checkColor(word);
        checkFormat(word);
    }
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    CommandContext context { outStream, errStream, store };
    const int status = runFormatCommand(words, context);
    FUZZ_CHECK(status == ExitStatus::ok || status == ExitStatus::usage);
    // A refusal always says why; an answer always says something.
    FUZZ_CHECK(status == ExitStatus::ok ? !out.isEmpty() : !err.isEmpty());
    return 0;
}
