// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/DialogUpdateInterface.h"

#include "services/Appcast.h"

#include "ModalAnswer.h"

#include <gtest/gtest.h>

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
        ModalAnswer person { QString::fromLatin1(row.answer) };
        ui.askAboutUpdate({ .version = QStringLiteral("142"), .displayVersion = QStringLiteral("1.4") },
            QStringLiteral("Vantle"), QStringLiteral("1.0"), [&](Choice choice) { choices << choice; });
        EXPECT_TRUE(choices.isEmpty()) << "answered before the person did";
        EXPECT_TRUE(QTest::qWaitFor([&] { return !choices.isEmpty(); }, 5000));
        EXPECT_TRUE(person.texts.join(u'|').contains(u"Vantle 1.4 is now available"));
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
