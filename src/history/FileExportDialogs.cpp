// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/FileExportDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>

FileExportDialogs::FileExportDialogs(QWidget *parent)
    : m_parent(parent)
{
}

void FileExportDialogs::chooseExportFile(
    const QString &folder, const QString &proposedName, bool asJSON, Completion onChosen)
{
    auto *dialog = new QFileDialog(m_parent, tr("Export Colors"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    // One file type only; a name typed without it gets the extension.
    dialog->setNameFilter(asJSON ? tr("JSON (*.json)") : tr("Plain Text (*.txt)"));
    dialog->setDefaultSuffix(asJSON ? QStringLiteral("json") : QStringLiteral("txt"));
    // Overwrite confirmation and the "Create Folder" button are on unless switched off;
    // switching them off by accident would lose files, so say it here.
    dialog->setOption(QFileDialog::DontConfirmOverwrite, false);
    dialog->setOption(QFileDialog::ReadOnly, false);
    if (!folder.isEmpty() && QDir(folder).exists())
        dialog->setDirectory(folder);
    dialog->selectFile(proposedName);
    QObject::connect(
        dialog, &QDialog::finished, dialog, [dialog, onChosen = std::move(onChosen)](int result) {
            const QStringList files = dialog->selectedFiles();
            if (result != QDialog::Accepted || files.isEmpty() || files.first().isEmpty())
                onChosen(std::nullopt);
            else
                onChosen(files.first());
        });
    m_dialogs.open(dialog);
}

void FileExportDialogs::showExportFailed(const QString &description)
{
    auto *box = new QMessageBox(QMessageBox::Warning, QGuiApplication::applicationDisplayName(),
        tr("Export Failed"), QMessageBox::Ok, m_parent);
    box->setInformativeText(description);
    box->setDefaultButton(QMessageBox::Ok);
    m_dialogs.open(box);
}
