#include "screens/PaintedButton.h"

#include <QKeyEvent>

void PaintedButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void PaintedButton::focusInEvent(QFocusEvent *event)
{
    // The popup opening or a click gives focus too, and a ring there would only look like a
    // stray selection.
    m_focusFromKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    QAbstractButton::focusInEvent(event);
}

void PaintedButton::enterEvent(QEnterEvent *event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void PaintedButton::leaveEvent(QEvent *event)
{
    update();
    QAbstractButton::leaveEvent(event);
}
