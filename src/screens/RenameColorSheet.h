#pragma once

#include "model/PickedColor.h"

#include <QDialog>
#include <functional>

class QLineEdit;
class QPushButton;

// The small modal sheet that names a colour: title, swatch with the upper-case hex text, one
// field and "Cancel"/"Save". Save hands the text on exactly as typed (the history model decides
// what an empty or blank name means); Cancel, Escape or closing the window change nothing.
class RenameColorSheet : public QDialog {
    Q_OBJECT
public:
    RenameColorSheet(const PickedColor &color, std::function<void(const QString &)> onRename,
                     QWidget *parent = nullptr);

    QLineEdit *nameField() const { return m_field; }
    QPushButton *saveButton() const { return m_save; }
    QPushButton *cancelButton() const { return m_cancel; }

private:
    std::function<void(const QString &)> m_onRename;
    QLineEdit *m_field;
    QPushButton *m_save;
    QPushButton *m_cancel;
};
