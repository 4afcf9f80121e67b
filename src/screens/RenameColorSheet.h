// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/PickedColor.h"

#include <QWidget>
#include <functional>

class QLineEdit;
class QPushButton;

// The sheet that names a colour, shown inside the popup in place of the list: title, swatch
// with the upper-case hex text, one field and "Cancel"/"Save". Save (or Return) hands the text
// on exactly as typed (the history model decides what an empty or blank name means); Cancel or
// Escape change nothing. Either way the sheet then emits `finished` and its host takes it away.
class RenameColorSheet : public QWidget {
    Q_OBJECT
public:
    RenameColorSheet(
        const PickedColor &color, std::function<void(const QString &)> onRename, QWidget *parent = nullptr);

    const PickedColor &color() const { return m_color; }
    QLineEdit *nameField() const { return m_field; }
    QPushButton *saveButton() const { return m_save; }
    QPushButton *cancelButton() const { return m_cancel; }
    // Closed by a key (Escape, Return, a button pressed from the keyboard), not the pointer.
    bool closedByKeyboard() const { return m_closedByKeyboard; }

Q_SIGNALS:
    void finished();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void save();

    PickedColor m_color;
    std::function<void(const QString &)> m_onRename;
    QLineEdit *m_field;
    QPushButton *m_save;
    QPushButton *m_cancel;
    bool m_closedByKeyboard = false;
};
