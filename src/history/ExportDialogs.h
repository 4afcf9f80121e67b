// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>

// The two dialogs of a palette export, behind an interface so tests can answer them.
//
// A backend must guarantee: main thread only; both calls return at once, without waiting for the
// user, so an export never sits half done inside a nested event loop.
class ExportDialogs {
public:
    // The chosen path, or nothing when cancelled.
    using Completion = std::function<void(const std::optional<QString> &path)>;

    virtual ~ExportDialogs() = default;
    // A modal save dialog in `folder` proposing `proposedName`, restricted to one file type
    // (JSON or plain text), able to create folders, confirming an overwrite. `onChosen` runs
    // exactly once when the user answered, unless the backend is destroyed first.
    virtual void chooseExportFile(
        const QString &folder, const QString &proposedName, bool asJSON, Completion onChosen)
        = 0;
    // The modal warning "Export Failed" with the system's description of the failure.
    virtual void showExportFailed(const QString &description) = 0;
};
