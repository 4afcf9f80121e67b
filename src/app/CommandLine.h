// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>
#include <optional>

class SettingsStore;

// The command line: small subcommands, each a function of its arguments (after the
// subcommand's name) and its streams, returning the exit status. `main` only dispatches.

// The texts the command line shows people (help and errors) are translated in this context;
// the data it prints for scripts (colours, JSON, the fields of `contrast`) never is.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct CommandContext {
    QTextStream &out;
    QTextStream &err;
    SettingsStore &store; // read-only for every subcommand but none writes today
};

namespace ExitStatus {
inline constexpr int ok = 0;
inline constexpr int failure = 1; // the command could not do its work (nothing picked, no instance…)
inline constexpr int usage = 2; // the command was given something it does not understand
} // namespace ExitStatus

// vantle format [--format NAME | --all] [--contrast] COLOR...
int runFormatCommand(const QStringList &args, CommandContext &context);

// vantle contrast [--json] FOREGROUND BACKGROUND
int runContrastCommand(const QStringList &args, CommandContext &context);

// vantle export [--pinned] [--json] [-o FILE]
int runExportCommand(const QStringList &args, CommandContext &context);
// vantle pick --print [--format NAME]: picks in this process and prints the colour; exit 1 when
// nothing was picked. Needs a QGuiApplication.
int runPickPrintCommand(const QStringList &args, CommandContext &context);

// Organisation, application name and version, where the settings file and the desktop look.
void setApplicationIdentity();

// The overall help text and the names of the subcommands.
QString commandLineHelp();
bool isSubcommand(const QString &word);

// Splits "--name=value" into "--name" and "value"; the helper every subcommand parses with.
struct OptionWord {
    QString name;
    std::optional<QString> inlineValue;
};
OptionWord splitOptionWord(const QString &word);
