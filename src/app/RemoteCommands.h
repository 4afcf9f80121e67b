// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine.h"

// `vantle pick` and `vantle toggle`: requests to the running Vantle, for desktops whose own
// keyboard settings bind commands rather than global shortcuts.
int runPickRequest(const QStringList &args, CommandContext &context);
int runToggleCommand(const QStringList &args, CommandContext &context);
