#include "platform/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool QtClipboard::setText(const QString &text)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    // A Wayland compositor takes the selection through the core protocol only with the serial of
    // a recent input event on a focused surface of ours, and drops it silently otherwise, while
    // Qt still reports owning it (measured on sway 1.7; mutter behaves the same). Without focus
    // the copy cannot happen: say so rather than claim it.
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))
        && !QGuiApplication::focusWindow())
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
