// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <functional>

// Answers the next modal dialog as a person would, by a button's text or with "Escape", and
// keeps every text it showed. Armed before the call that opens the dialog: it answers once the
// dialog is shown, from the event loop the dialog runs.
struct ModalAnswer : QObject {
    explicit ModalAnswer(const QString &answer)
        : m_answer(answer)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QWidget *>(watched);
        if (event->type() != QEvent::Show || !dialog || !dialog->isWindow() || !dialog->isModal())
            return false;
        qApp->removeEventFilter(this);
        QMetaObject::invokeMethod(
            this, [this, shown = QPointer(dialog)] { answer(shown); }, Qt::QueuedConnection);
        return false;
    }

    void answer(QWidget *dialog)
    {
        if (!dialog)
            return;
        wasShown = true;
        if (whileShown)
            whileShown();
        for (QLabel *label : dialog->findChildren<QLabel *>()) // a message box's texts too
            texts << label->text();
        if (m_answer == QLatin1String("Escape"))
            return QTest::keyClick(dialog, Qt::Key_Escape);
        for (QPushButton *button : dialog->findChildren<QPushButton *>())
            if (button->text() == m_answer)
                QTest::mouseClick(button, Qt::LeftButton);
    }

    std::function<void()> whileShown; // runs before the answer, while the dialog is up
    bool wasShown = false;
    QStringList texts;

private:
    QString m_answer;
};
