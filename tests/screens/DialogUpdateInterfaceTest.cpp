// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/DialogUpdateInterface.h"

#include "services/Appcast.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

AppcastItem release()
{
    AppcastItem item;
    item.version = QStringLiteral("142");
    item.displayVersion = QStringLiteral("1.4");
    item.releaseNotes = QStringLiteral("<ul><li>Faster picking</li></ul>");
    return item;
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
        const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
            [](QLabel *label) { return label->text().contains(u"Vantle 1.4 is now available"); }));
        const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
        const auto button = std::find_if(buttons.begin(), buttons.end(),
            [&](QPushButton *b) { return b->text() == QLatin1String(row.answer); });
        if (button != buttons.end())
            QTest::mouseClick(*button, Qt::LeftButton);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_EQ(choices, QList<Choice> { row.choice });
    }
}

TEST(DialogUpdateInterface, MessageBoxIsWideEnoughForItsTitle)
{
    DialogUpdateInterface ui;
    ui.showUpToDate(QStringLiteral("Vantle"), QStringLiteral("1.0"));
    QWidget *box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    QFont titleFont = box->font();
    titleFont.setBold(true);
    EXPECT_GT(box->width(), QFontMetrics(titleFont).horizontalAdvance(box->windowTitle()) + 100);
    box->close();
}
