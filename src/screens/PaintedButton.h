// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

// A button that paints itself: what the popup's buttons and format lines share. It knows when
// the pointer is over it and when focus came from the keyboard (the only time a focus ring is
// drawn), and Return presses it, as on the desktop's own push buttons.
class PaintedButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit PaintedButton(QWidget *parent = nullptr);

    // Focus reached by the keyboard, not by the pointer, the window opening or a click.
    bool showsFocusRing() const { return hasFocus() && m_focusFromKeyboard; }

protected:
    // One highlight at a time, following what the person used last: the pointer takes the
    // keyboard focus along to the button it enters, and a button the keyboard has since left
    // shows no hover look even with the pointer resting on it.
    bool isHovered() const { return underMouse() && (hasFocus() || !takesFocusFromPointer()); }
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    // Repaint for the hover look.
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    bool takesFocusFromPointer() const { return isEnabled() && (focusPolicy() & Qt::TabFocus); }

    bool m_focusFromKeyboard = false;
};
