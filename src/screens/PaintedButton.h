#pragma once

#include <QAbstractButton>

// A button that paints itself: what the popup's buttons and format lines share. It knows when
// the pointer is over it and when focus came from the keyboard (the only time a focus ring is
// drawn), and Return presses it, as on the desktop's own push buttons.
class PaintedButton : public QAbstractButton {
    Q_OBJECT
public:
    using QAbstractButton::QAbstractButton;

protected:
    bool isHovered() const { return underMouse(); }
    // Focus reached by the keyboard, not by the window opening or a click.
    bool showsFocusRing() const { return hasFocus() && m_focusFromKeyboard; }

    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    // Repaint for the hover look.
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool m_focusFromKeyboard = false;
};
