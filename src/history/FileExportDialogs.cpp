#include "history/FileExportDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>

FileExportDialogs::FileExportDialogs(QWidget *parent)
    : m_parent(parent)
{
}

std::optional<QString> FileExportDialogs::chooseExportFile(
    const QString &folder, const QString &proposedName, bool asJSON)
{
    QFileDialog dialog(m_parent, tr("Export Colors"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // One file type only; a name typed without it gets the extension.
    dialog.setNameFilter(asJSON ? tr("JSON (*.json)") : tr("Plain Text (*.txt)"));
    dialog.setDefaultSuffix(asJSON ? QStringLiteral("json") : QStringLiteral("txt"));
    // Overwrite confirmation and the "Create Folder" button are on unless switched off;
    // switching them off by accident would lose files, so say it here.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, false);
    dialog.setOption(QFileDialog::ReadOnly, false);
    if (!folder.isEmpty() && QDir(folder).exists())
        dialog.setDirectory(folder);
    dialog.selectFile(proposedName);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QStringList files = dialog.selectedFiles();
    if (files.isEmpty() || files.first().isEmpty())
        return std::nullopt;
    return files.first();
}

void FileExportDialogs::showExportFailed(const QString &description)
{
    QMessageBox box(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), tr("Export Failed"),
        QMessageBox::Ok, m_parent);
    box.setInformativeText(description);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
}
