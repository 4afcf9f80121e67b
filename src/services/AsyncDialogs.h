// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointer>

class QDialog;

// Dialogs as modal as blocking ones, but answered through their `finished` signal: the program
// goes on in its own event loop and never waits for the user inside a pick, a save or a
// download that is half done. Each dialog deletes itself after its answer; those still open
// when the owner goes are closed without one. Main thread only.
class AsyncDialogs {
public:
    AsyncDialogs() = default;
    ~AsyncDialogs();
    AsyncDialogs(const AsyncDialogs &) = delete;
    AsyncDialogs &operator=(const AsyncDialogs &) = delete;

    // Takes `dialog` (made with `new`, its `finished` already connected) and shows it.
    void open(QDialog *dialog);

private:
    QList<QPointer<QDialog>> m_open;
};
