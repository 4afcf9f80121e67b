#include "screens/DialogUpdateInterface.h"

#include "services/Appcast.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// Answers the next modal dialog by a button's text (or Escape) and keeps every text it showed.
struct DialogAnswer {
    explicit DialogAnswer(QString answer)
    {
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, [this, answer] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            timer.stop();
            if (auto *box = qobject_cast<QMessageBox *>(dialog))
                texts << box->text() << box->informativeText();
            for (QLabel *label : dialog->findChildren<QLabel *>())
                texts << label->text();
            if (answer == QLatin1String("Escape")) {
                QTest::keyClick(dialog, Qt::Key_Escape);
                return;
            }
            for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
                if (button->text() == answer)
                    QTest::mouseClick(button, Qt::LeftButton);
            }
        });
        timer.start();
    }

    QTimer timer;
    QStringList texts;
};

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

TEST(DialogUpdateInterface, UpdateOfferReturnsTheButtonThePersonChose)
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
        DialogAnswer answer { QString::fromLatin1(row.answer) };
        EXPECT_EQ(ui.askAboutUpdate(release(), QStringLiteral("Vantle"), QStringLiteral("1.0")), row.choice);
        EXPECT_TRUE(answer.texts.join(u'\n').contains(QStringLiteral("Vantle 1.4 is now available")))
            << answer.texts.join(u'\n').toStdString();
    }
}

TEST(DialogUpdateInterface, UpToDateNamesTheRunningVersion)
{
    DialogUpdateInterface ui;
    DialogAnswer answer { QStringLiteral("OK") };
    ui.showUpToDate(QStringLiteral("Vantle"), QStringLiteral("1.4"));
    EXPECT_TRUE(answer.texts.contains(QStringLiteral("You're up to date!")));
    EXPECT_TRUE(answer.texts.contains(QStringLiteral("Vantle 1.4 is the latest version.")));
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
