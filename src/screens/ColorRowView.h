// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/PickedColor.h"

#include <QPointer>
#include <QWidget>
#include <functional>

class QMenu;

// One row of the colour list: swatch, optional name over the value in the list's format, and
// a pin mark for pinned colours. The row highlights under the pointer and offers "Copy",
// "Pin"/"Unpin", "Rename…" and "Delete" in its context menu; every action is a callback, the
// row changes nothing itself. A plain click (or Return) only emits `activated`, and "Rename…"
// `renameRequested`: the list decides what they mean.
class ColorRowView : public QWidget {
    Q_OBJECT
public:
    ColorRowView(const PickedColor &color, ColorFormat format, std::function<void()> onCopy,
        std::function<void()> onPin, std::function<void(const QString &)> onRename,
        std::function<void()> onDelete, QWidget *parent = nullptr);

    const PickedColor &color() const { return m_color; }
    // Under the pointer and not since left by the keyboard for another row: the pointer takes
    // the keyboard focus along, so only one row ever looks selected.
    bool isHovered() const { return m_isHovered && hasFocus(); }
    QString valueText() const;
    // Focus reached by the keyboard: what the row opens continues on the keyboard.
    bool showsFocusRing() const { return hasFocus() && m_focusFromKeyboard; }

    // The context menu, shown at a global position; it deletes itself when closed.
    QMenu *showContextMenu(const QPoint &globalPosition);
Q_SIGNALS:
    void activated();
    void renameRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void showMenuFromKeyboard();

    PickedColor m_color;
    ColorFormat m_format;
    std::function<void()> m_onCopy;
    std::function<void()> m_onPin;
    std::function<void(const QString &)> m_onRename;
    std::function<void()> m_onDelete;
    bool m_isHovered = false;
    bool m_isPressed = false;
    QPointer<QMenu> m_menu; // the row's menu while it is open
    bool m_focusFromKeyboard = false;
};
