// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

// Runs an external program with an argument list (never through a shell) and waits for it.
//
// A runner must guarantee: callable from any thread, blocking until the program has ended;
// the standard error is discarded; the result is the standard output when `captureOutput` is
// true (empty otherwise), or nothing when the program could not be started. The exit status is
// not reported: the callers never act on it.
class CommandRunner {
public:
    virtual ~CommandRunner() = default;
    virtual std::optional<QByteArray> run(
        const QString &program, const QStringList &arguments, bool captureOutput)
        = 0;
};
