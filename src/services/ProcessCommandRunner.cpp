// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/ProcessCommandRunner.h"

#include <QProcess>

namespace {
// A tool that hangs (a stuck udisks daemon) must not hold the worker forever.
constexpr int runLimitMs = 60'000;
} // namespace

std::optional<QByteArray> ProcessCommandRunner::run(
    const QString &program, const QStringList &arguments, bool captureOutput)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!captureOutput)
        process.setStandardOutputFile(QProcess::nullDevice());
    process.setProgram(program);
    process.setArguments(arguments);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted())
        return std::nullopt;
    if (!captureOutput) {
        if (!process.waitForFinished(runLimitMs)) {
            process.kill();
            process.waitForFinished();
        }
        return QByteArray();
    }
    // Read while it runs, so a long listing never blocks the tool on a full pipe.
    QByteArray output;
    while (process.state() != QProcess::NotRunning) {
        if (!process.waitForReadyRead(runLimitMs) && process.error() == QProcess::Timedout) {
            process.kill();
            process.waitForFinished();
            break;
        }
        output += process.readAllStandardOutput();
    }
    output += process.readAllStandardOutput();
    return output;
}
