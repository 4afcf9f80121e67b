// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/ExportDialogs.h"
#include "services/AsyncDialogs.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

// The export's save dialog (QFileDialog) and its "Export Failed" warning (QMessageBox), both
// modal and both answered later. `parent`, when given, is the window the dialogs belong to; the
// tray program has none. Dialogs still open when this goes are closed without an answer.
class FileExportDialogs : public ExportDialogs {
    Q_DECLARE_TR_FUNCTIONS(FileExportDialogs)
public:
    explicit FileExportDialogs(QWidget *parent = nullptr);

    void chooseExportFile(
        const QString &folder, const QString &proposedName, bool asJSON, Completion onChosen) override;
    void showExportFailed(const QString &description) override;

private:
    QPointer<QWidget> m_parent;
    AsyncDialogs m_dialogs;
};
