// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/PaintedButton.h"

#include <QKeyEvent>

PaintedButton::PaintedButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setMouseTracking(true); // see mouseMoveEvent
}

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
    update();
}

void PaintedButton::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    update(); // a hover look that follows the focus
}

void PaintedButton::enterEvent(QEnterEvent *event)
{
    // The focus follows the pointer once it moves (mouseMoveEvent): a window opening under a
    // resting pointer keeps its focus where it starts.
    update();
    QAbstractButton::enterEvent(event);
}

void PaintedButton::mouseMoveEvent(QMouseEvent *event)
{
    // The pointer moving over a button takes the highlight, also back from the keyboard.
    if (takesFocusFromPointer() && !hasFocus()) {
        setFocus(Qt::MouseFocusReason);
        update();
    }
    QAbstractButton::mouseMoveEvent(event);
}

void PaintedButton::leaveEvent(QEvent *event)
{
    update();
    QAbstractButton::leaveEvent(event);
}
