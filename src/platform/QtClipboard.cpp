// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

QtClipboard::QtClipboard(bool isFocusRequired)
    : m_isFocusRequired(isFocusRequired)
{
}

bool QtClipboard::setText(const QString &text)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    // Without the focus it needs the copy cannot happen: say so rather than claim it.
    if (m_isFocusRequired && !QGuiApplication::focusWindow())
        return false;
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(text, QClipboard::Clipboard);
    // Owning the selection means other programs will receive our text. Platforms that keep
    // the clipboard inside the process never claim ownership; there our own data is the proof.
    if (clipboard->ownsClipboard())
        return true;
    const QMimeData *data = clipboard->mimeData(QClipboard::Clipboard);
    return data && data->hasText() && data->text() == text;
}
