#include "screens/DialogUpdateInterface.h"

#include "services/Appcast.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <string_view>

namespace {

AppcastItem release()
{
    AppcastItem item;
    item.version = QStringLiteral("142");
    item.displayVersion = QStringLiteral("1.4");
    item.releaseNotes = QStringLiteral("<ul><li>Faster picking</li></ul>");
    return item;
}

QProgressDialog *progressDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QProgressDialog *>(widget); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace

TEST(DialogUpdateInterface, UpdateOfferAnswersWithTheButtonThePersonChose)
{
    using Choice = UpdateUserInterface::Choice;
    const struct {
        const char *answer;
        Choice choice;
    } rows[] = {
        { "Download", Choice::download },
        { "Remind Me Later", Choice::remindLater },
        { "Skip This Version", Choice::skipThisVersion },
        { "Escape", Choice::remindLater },
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.answer);
        DialogUpdateInterface ui;
        QList<Choice> choices;
        ui.askAboutUpdate(release(), QStringLiteral("Vantle"), QStringLiteral("1.0"),
            [&](Choice choice) { choices << choice; });
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(choices.isEmpty()) << "answered before the person did";
        QStringList texts;
        for (QLabel *label : dialog->findChildren<QLabel *>())
            texts << label->text();
        EXPECT_TRUE(texts.join(u'\n').contains(QStringLiteral("Vantle 1.4 is now available")))
            << texts.join(u'\n').toStdString();
        if (row.answer == std::string_view("Escape")) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
                if (button->text() == QLatin1String(row.answer))
                    QTest::mouseClick(button, Qt::LeftButton);
            }
        }
        EXPECT_EQ(choices, QList<Choice> { row.choice });
    }
}

TEST(DialogUpdateInterface, ProgressOfLargeDownloadsAndCancel)
{
    DialogUpdateInterface ui;
    int cancels = 0;
    ui.downloadStarted(release(), [&] {
        ++cancels;
        ui.downloadEnded(); // the updater answers a cancel at once
    });
    QProgressDialog *dialog = progressDialog();
    ASSERT_NE(dialog, nullptr);

    // Byte counts beyond the int range still give the right share.
    ui.downloadProgressed(qint64(6) << 30, qint64(12) << 30);
    EXPECT_EQ(dialog->findChild<QProgressBar *>()->text(), QStringLiteral("50%"));

    QTest::mouseClick(dialog->findChild<QPushButton *>(), Qt::LeftButton);
    EXPECT_EQ(cancels, 1);
    EXPECT_EQ(progressDialog(), nullptr);
    ui.downloadEnded(); // a late end is harmless
    EXPECT_EQ(cancels, 1);
}
