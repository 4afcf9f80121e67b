// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/InstanceClient.h"

namespace {

int sendRequest(const char *command, const QString &method, const QStringList &args, CommandContext &context)
{
    if (!args.isEmpty()) {
        context.err << "vantle " << command << ": "
                    << CommandLine::tr("unexpected argument \"%1\"").arg(args.first()) << '\n';
        return ExitStatus::usage;
    }
    QString error;
    if (!sendInstanceRequest(method, &error)) {
        context.err << "vantle " << command << ": " << error << ' '
                    << CommandLine::tr("Start it with `vantle` (or from your applications menu) first.")
                    << '\n';
        return ExitStatus::failure;
    }
    return ExitStatus::ok;
}

} // namespace

int runPickRequest(const QStringList &args, CommandContext &context)
{
    return sendRequest("pick", QStringLiteral("Pick"), args, context);
}

int runToggleCommand(const QStringList &args, CommandContext &context)
{
    return sendRequest("toggle", QStringLiteral("TogglePopover"), args, context);
}
