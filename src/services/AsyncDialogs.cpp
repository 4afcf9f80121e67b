// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/AsyncDialogs.h"

#include <QDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>

namespace {

// A message box sizes itself to its texts alone, and the window manager then cuts a longer
// title ("Soft… date"). Room for the title in the title bar's bold font, with the bar's
// buttons and margins beside it.
void makeRoomForTitle(QMessageBox &box)
{
    constexpr int titleBarChrome = 160;
    QFont titleFont = box.font();
    titleFont.setBold(true);
    const int width = QFontMetrics(titleFont).horizontalAdvance(box.windowTitle()) + titleBarChrome;
    if (auto *grid = qobject_cast<QGridLayout *>(box.layout()))
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), grid->rowCount(),
            0, 1, grid->columnCount());
}

} // namespace

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
    if (auto *box = qobject_cast<QMessageBox *>(dialog))
        makeRoomForTitle(*box);
    QObject::connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
    m_open.removeAll(nullptr);
    m_open.append(dialog);
    dialog->show();
}
