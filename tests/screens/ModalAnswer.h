// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

// Answers the next modal dialog as a person would, by a button's text or with "Escape", and
// keeps every text it showed. Armed before the call that opens the dialog.
struct ModalAnswer {
    explicit ModalAnswer(const QString &answer)
    {
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, [this, answer] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            timer.stop();
            wasShown = true;
            if (whileShown)
                whileShown();
            texts << dialog->windowTitle();
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
    std::function<void()> whileShown; // runs before the answer, while the dialog is up
    bool wasShown = false;
    QStringList texts;
};
