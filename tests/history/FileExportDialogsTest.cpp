// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/FileExportDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

TEST(FileExportDialogs, SaveDialogProposesTheNameInTheFolderForOneFileType)
{
    QTemporaryDir folder;
    const struct {
        bool asJSON;
        const char *name, *filter;
        bool saved; // or cancelled with Escape
    } cases[] = { { true, "pinned-colors.json", "JSON (*.json)", true },
        { false, "colors.txt", "Plain Text (*.txt)", false } };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        FileExportDialogs dialogs;
        QList<std::optional<QString>> answers;
        dialogs.chooseExportFile(
            folder.path(), QString::fromLatin1(c.name), c.asJSON, [&](auto path) { answers << path; });
        QFileDialog *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(answers.isEmpty()) << "answered before the user did";
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog->nameFilters(), QStringList { QString::fromLatin1(c.filter) });
        EXPECT_EQ(dialog->directory().absolutePath(), QDir(folder.path()).absolutePath());
        EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_FALSE(dialog->testOption(QFileDialog::ReadOnly)); // the "Create Folder" button
        c.saved ? static_cast<QDialog *>(dialog)->accept() : QTest::keyClick(dialog, Qt::Key_Escape);
        const std::optional<QString> expected = folder.filePath(QString::fromLatin1(c.name));
        EXPECT_EQ(answers, QList { c.saved ? expected : std::nullopt });
    }
}

TEST(FileExportDialogs, FailureIsAWarningWithTheSystemsReason)
{
    FileExportDialogs dialogs;
    dialogs.showExportFailed(QStringLiteral("Permission denied"));
    QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), u"Permission denied");
    ASSERT_EQ(box->buttons().size(), 1);
    box->buttons().first()->click();
}
