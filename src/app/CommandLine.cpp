// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include "BuildInfo.h"
#include "app/DesktopPart.h"

#include <QCoreApplication>
#include <cstring>

namespace {

struct SubcommandInfo {
    const char *name;
};

constexpr SubcommandInfo subcommands[]
    = { { "format" }, { "contrast" }, { "export" }, { "pick" }, { "toggle" } };

} // namespace

bool isSubcommand(const QString &word)
{
    for (const auto &sub : subcommands)
        if (word == QLatin1String(sub.name))
            return true;
    return false;
}

void setApplicationIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationName(QStringLiteral("Vantle"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(BuildInfo::version));
}

bool DesktopPart::isNeededFor(int argc, char **argv)
{
    if (argc < 2)
        return true; // the tray program
    if (std::strcmp(argv[1], "pick") != 0)
        return false;
    for (int i = 2; i < argc; ++i)
        if (std::strcmp(argv[i], "--print") == 0)
            return true;
    return false;
}

OptionWord splitOptionWord(const QString &word)
{
    const qsizetype eq = word.indexOf(u'=');
    if (word.startsWith(QStringLiteral("--")) && eq > 2)
        return { word.left(eq), word.mid(eq + 1) };
    return { word, std::nullopt };
}

QString commandLineHelp()
{
    //: The names of commands and options, the example lines (starting with "vantle") and %1 stay
    //: as they are; keep each line within 80 columns.
    return CommandLine::tr("Usage: vantle [COMMAND] [OPTIONS]\n"
                           "\n"
                           "Without a command, Vantle starts in the system tray (or, when it already runs,\n"
                           "shows or hides its popup).\n"
                           "\n"
                           "Commands:\n"
                           "  format [--format NAME | --all] [--contrast] COLOR...\n"
                           "      Print colours as text. COLOR is any text Vantle writes (rgb(...),\n"
                           "      hsl(...)...), #RGB, #RRGGBB, RRGGBB, or sRGB components r,g,b or r,g,b,a\n"
                           "      between 0 and 1. Without --format the preferred format is used.\n"
                           "      --all prints all nine formats as LABEL<TAB>TEXT; --contrast adds the\n"
                           "      WCAG contrast against white and black.\n"
                           "        vantle format '#FF6B36' --format hsl\n"
                           "        vantle format --all --contrast 1.0,0.42,0.21\n"
                           "  contrast [--json] FOREGROUND BACKGROUND\n"
                           "      Print the WCAG 2 contrast ratio of a text colour on its background, its\n"
                           "      grades for normal text, large text and non-text parts, and the APCA\n"
                           "      lightness contrast Lc; --json prints one object. A colour is any text\n"
                           "      Vantle writes, #RGB, or the forms `format` reads.\n"
                           "        vantle contrast '#888' '#FFF'\n"
                           "  export [--pinned] [--json] [-o FILE]\n"
                           "      Print the stored history (or only the pinned colours) as text in the\n"
                           "      preferred format, or as JSON; with -o, write it atomically to FILE.\n"
                           "        vantle export --pinned --json -o palette.json\n"
                           "  pick [--print [--format NAME]]\n"
                           "      Ask the running Vantle to start a pick (bind this to a key in your\n"
                           "      desktop's keyboard settings). With --print, pick in this process and\n"
                           "      print the colour instead; exit status 1 when cancelled.\n"
                           "        vantle pick\n"
                           "        vantle pick --print --format hexLower\n"
                           "  toggle\n"
                           "      Ask the running Vantle to show or hide its popup.\n"
                           "        vantle toggle\n"
                           "\n"
                           "Options:\n"
                           "  -h, --help     Show this help.\n"
                           "  -v, --version  Show the version.\n"
                           "\n"
                           "Settings: %1\n")
        .arg(QStringLiteral("$XDG_CONFIG_HOME/Vantle/Vantle.conf (~/.config/Vantle/Vantle.conf)"));
}
