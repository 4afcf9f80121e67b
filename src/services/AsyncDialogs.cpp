// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/AsyncDialogs.h"

#include <QDialog>

AsyncDialogs::~AsyncDialogs()
{
    for (const QPointer<QDialog> &dialog : std::as_const(m_open)) {
        if (dialog) {
            dialog->disconnect();
            delete dialog;
        }
    }
}

void AsyncDialogs::open(QDialog *dialog)
{
    // Application-modal, as QDialog::exec() makes them; open() would settle for window-modal,
    // which blocks nothing for a tray program's parentless dialogs.
    dialog->setWindowModality(Qt::ApplicationModal);
    QObject::connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
    m_open.removeAll(nullptr);
    m_open.append(dialog);
    dialog->show();
}
