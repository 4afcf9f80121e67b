#pragma once

#include "history/ExportDialogs.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

// The export's save dialog (QFileDialog) and its "Export Failed" warning (QMessageBox), both
// modal. `parent`, when given, is the window the dialogs belong to; the tray program has none.
class FileExportDialogs : public ExportDialogs {
    Q_DECLARE_TR_FUNCTIONS(FileExportDialogs)
public:
    explicit FileExportDialogs(QWidget *parent = nullptr);

    std::optional<QString> chooseExportFile(
        const QString &folder, const QString &proposedName, bool asJSON) override;
    void showExportFailed(const QString &description) override;

private:
    QPointer<QWidget> m_parent;
};
