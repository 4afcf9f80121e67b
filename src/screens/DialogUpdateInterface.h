// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/AsyncDialogs.h"
#include "services/UpdateUserInterface.h"

#include <QPointer>
#include <QString>

class QProgressDialog;
class QWidget;

// The updater's questions and reports as desktop dialogs: the up-to-date box, the update offer
// with its release notes, a progress dialog with Cancel, the failure box and the "downloaded"
// box that can show the file in the file manager. Main thread only. Dialogs still open when this
// goes are closed without an answer.
class DialogUpdateInterface : public UpdateUserInterface {
public:
    // `dialogParent` may be null (a tray program usually has no window open).
    explicit DialogUpdateInterface(QWidget *dialogParent = nullptr);
    ~DialogUpdateInterface() override;
    DialogUpdateInterface(const DialogUpdateInterface &) = delete;
    DialogUpdateInterface &operator=(const DialogUpdateInterface &) = delete;

    void showUpToDate(const QString &name, const QString &version) override;
    void askAboutUpdate(const AppcastItem &update, const QString &name, const QString &currentVersion,
        std::function<void(Choice)> onChoice) override;
    void downloadStarted(const AppcastItem &update, std::function<void()> onCancel) override;
    void downloadProgressed(qint64 received, qint64 total) override;
    void downloadEnded() override;
    void showDownloadFailed(const QString &message) override;
    void showDownloadReady(const AppcastItem &update, const QString &filePath, bool automatic) override;

    // Opens the file manager on `filePath` with the file selected (org.freedesktop.FileManager1),
    // or on its folder when no file manager answers that request.
    static void showInFileManager(const QString &filePath);

private:
    QString updateName(const AppcastItem &update) const;

    QPointer<QWidget> m_dialogParent;
    QString m_applicationName;
    QPointer<QProgressDialog> m_progress;
    AsyncDialogs m_dialogs;
};
