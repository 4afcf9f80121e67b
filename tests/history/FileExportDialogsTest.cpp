// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/FileExportDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

TEST(FileExportDialogs, SaveDialogProposesTheNameInTheFolderForOneFileType)
{
    QTemporaryDir folder;
    struct Case {
        bool asJSON;
        const char *name;
        const char *filter;
    };
    for (const Case &c : { Case { true, "pinned-colors.json", "JSON (*.json)" },
             Case { false, "colors.txt", "Plain Text (*.txt)" } }) {
        SCOPED_TRACE(c.name);
        FileExportDialogs dialogs;
        std::optional<std::optional<QString>> chosen;
        dialogs.chooseExportFile(folder.path(), QString::fromLatin1(c.name), c.asJSON,
            [&](const std::optional<QString> &path) { chosen = path; });
        QFileDialog *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(chosen, std::nullopt) << "answered before the user did";
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog->nameFilters(), QStringList { QString::fromLatin1(c.filter) });
        EXPECT_EQ(dialog->directory().absolutePath(), QDir(folder.path()).absolutePath());
        EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_FALSE(dialog->testOption(QFileDialog::ReadOnly)); // the "Create Folder" button
        static_cast<QDialog *>(dialog)->accept(); // as the Save button does
        EXPECT_EQ(chosen, std::optional<QString>(folder.filePath(QString::fromLatin1(c.name))));
    }
}

TEST(FileExportDialogs, CancelledSaveDialogChoosesNothing)
{
    FileExportDialogs dialogs;
    QList<std::optional<QString>> answers;
    dialogs.chooseExportFile(
        QDir::tempPath(), QStringLiteral("colors.txt"), false, [&](auto path) { answers << path; });
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    EXPECT_EQ(answers, QList<std::optional<QString>> { std::nullopt });
}

TEST(FileExportDialogs, FailureIsAWarningWithTheSystemsReason)
{
    FileExportDialogs dialogs;
    dialogs.showExportFailed(QStringLiteral("Permission denied"));
    QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->text(), u"Export Failed");
    EXPECT_EQ(box->informativeText(), u"Permission denied");
    ASSERT_EQ(box->buttons().size(), 1);
    box->buttons().first()->click();
}

} // namespace
