#include "history/FileExportDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Answers the next modal dialog once it is on screen (checked every 10 ms, for at most 10 s).
template<typename Dialog>
void whenShown(std::function<void(Dialog &)> answer)
{
    auto *poll = new QTimer(qApp);
    auto *tries = new int(0);
    QObject::connect(poll, &QTimer::timeout, poll, [=] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            if (++*tries < 1000)
                return;
            ADD_FAILURE() << "no dialog appeared";
        } else {
            answer(*dialog);
        }
        delete tries;
        poll->deleteLater();
        poll->stop();
    });
    poll->start(10);
}

TEST(FileExportDialogs, SaveDialogProposesTheNameInTheFolderForOneFileType)
{
    QTemporaryDir folder;
    struct Case {
        bool asJSON;
        const char *name;
        const char *filter;
    };
    for (const Case &c : {Case{true, "pinned-colors.json", "JSON (*.json)"}, Case{false, "colors.txt", "Plain Text (*.txt)"}}) {
        SCOPED_TRACE(c.name);
        whenShown<QFileDialog>([&](QFileDialog &dialog) {
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(dialog.nameFilters(), QStringList{QString::fromLatin1(c.filter)});
            EXPECT_EQ(dialog.directory().absolutePath(), QDir(folder.path()).absolutePath());
            EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
            EXPECT_FALSE(dialog.testOption(QFileDialog::ReadOnly)); // the "Create Folder" button
            static_cast<QDialog &>(dialog).accept(); // as the Save button does
        });
        FileExportDialogs dialogs;
        const std::optional<QString> chosen = dialogs.chooseExportFile(folder.path(), QString::fromLatin1(c.name), c.asJSON);
        EXPECT_EQ(chosen, folder.filePath(QString::fromLatin1(c.name)));
    }
}

TEST(FileExportDialogs, CancelledSaveDialogChoosesNothing)
{
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    FileExportDialogs dialogs;
    EXPECT_EQ(dialogs.chooseExportFile(QDir::tempPath(), QStringLiteral("colors.txt"), false), std::nullopt);
}

TEST(FileExportDialogs, FailureIsAWarningWithTheSystemsReason)
{
    bool shown = false;
    whenShown<QMessageBox>([&](QMessageBox &box) {
        shown = true;
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.text(), u"Export Failed");
        EXPECT_EQ(box.informativeText(), u"Permission denied");
        ASSERT_EQ(box.buttons().size(), 1);
        box.buttons().first()->click();
    });
    FileExportDialogs().showExportFailed(QStringLiteral("Permission denied"));
    EXPECT_TRUE(shown);
}

} // namespace
