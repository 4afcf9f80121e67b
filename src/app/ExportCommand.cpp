// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "history/PaletteExport.h"
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/AtomicFile.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QFileInfo>

int runExportCommand(const QStringList &args, CommandContext &context)
{
    bool pinnedOnly = false;
    bool asJSON = false;
    std::optional<QString> outputPath;

    auto usageError = [&](const QString &message) {
        context.err << "vantle export: " << message << Qt::endl;
        return ExitStatus::usage;
    };

    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &word = args[i];
        const OptionWord option = splitOptionWord(word);
        if (word == u"--pinned" || word == u"-p") {
            pinnedOnly = true;
        } else if (word == u"--json" || word == u"-j") {
            asJSON = true;
        } else if (option.name == u"--output" || option.name == u"-o") {
            if (option.inlineValue)
                outputPath = *option.inlineValue;
            else if (i + 1 < args.size())
                outputPath = args[++i];
            else
                return usageError(CommandLine::tr("-o needs a file name"));
            if (outputPath->isEmpty())
                return usageError(CommandLine::tr("-o needs a file name"));
        } else if (word == u"--help" || word == u"-h") {
            context.out << CommandLine::tr(
                "Usage: vantle export [--pinned] [--json] [-o FILE]\n"
                "Prints the stored colour history (with --pinned only the pinned colours), newest\n"
                "first, as text in the preferred format or as JSON; -o writes it to FILE.")
                        << '\n';
            return ExitStatus::ok;
        } else {
            return usageError(CommandLine::tr("unknown argument \"%1\"").arg(word));
        }
    }

    QList<PickedColor> colors;
    if (const std::optional<QByteArray> stored = context.store.dataForKey(PreferenceKeys::colorHistory)) {
        std::optional<QList<PickedColor>> decoded = decodeColorHistory(*stored);
        if (!decoded) {
            // The tray program starts empty on such a value; here an empty palette would look
            // like a lost history, so say so, and where it lies: in a file of its own, or still
            // in the settings file where earlier versions kept it.
            const QString dataPath = context.store.dataFilePath(PreferenceKeys::colorHistory);
            context.err << "vantle export: "
                        << CommandLine::tr("the stored colour history cannot be read (%1)")
                               .arg(QFileInfo::exists(dataPath) ? dataPath : context.store.filePath())
                        << Qt::endl;
            return ExitStatus::failure;
        }
        colors = std::move(*decoded);
    }
    if (pinnedOnly)
        colors.removeIf([](const PickedColor &color) { return !color.isPinned; });

    const QByteArray content
        = asJSON ? exportJSON(colors) : exportText(colors, SettingsViewModel::currentFormat(context.store));
    if (outputPath) {
        if (const std::optional<QString> failure = writeFileAtomically(*outputPath, content)) {
            context.err << "vantle export: "
                        << CommandLine::tr("cannot write \"%1\": %2").arg(*outputPath, *failure) << Qt::endl;
            return ExitStatus::failure;
        }
        return ExitStatus::ok;
    }
    // The file layouts end without a line feed; a terminal prompt should not follow on the
    // same line.
    context.out << QString::fromUtf8(content);
    if (!content.isEmpty())
        context.out << '\n';
    context.out.flush();
    return ExitStatus::ok;
}
