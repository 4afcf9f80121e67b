// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/CommandRunner.h"

// CommandRunner over QProcess; the program is looked up on PATH.
class ProcessCommandRunner : public CommandRunner {
public:
    std::optional<QByteArray> run(
        const QString &program, const QStringList &arguments, bool captureOutput) override;
};
