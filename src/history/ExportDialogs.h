#pragma once

#include <QString>
#include <optional>

// The two dialogs of a palette export, behind an interface so tests can answer them.
class ExportDialogs {
public:
    virtual ~ExportDialogs() = default;
    // A modal save dialog in `folder` proposing `proposedName`, restricted to one file type
    // (JSON or plain text), able to create folders, confirming an overwrite. The chosen path,
    // or nothing when cancelled.
    virtual std::optional<QString> chooseExportFile(const QString &folder, const QString &proposedName,
                                                    bool asJSON)
        = 0;
    // The modal warning "Export Failed" with the system's description of the failure.
    virtual void showExportFailed(const QString &description) = 0;
};
