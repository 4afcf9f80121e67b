// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

struct AppcastItem;

// What the updater shows the user. The desktop backend uses dialogs; tests answer in code.
//
// A backend must guarantee: main thread only; every method returns at once, without waiting for
// the user, so no check or download sits half done inside a nested event loop; none of them
// calls back into the updater except through `onChoice` and `onCancel`.
class UpdateUserInterface {
public:
    enum class Choice { download, remindLater, skipThisVersion };

    virtual ~UpdateUserInterface() = default;

    // Modal: "You're up to date!" with "<name> <version> is the latest version.".
    virtual void showUpToDate(const QString &name, const QString &version) = 0;
    // Modal: a newer release with its notes. `onChoice` runs exactly once with what the user
    // chose, unless the interface is destroyed first.
    virtual void askAboutUpdate(const AppcastItem &update, const QString &name, const QString &currentVersion,
        std::function<void(Choice)> onChoice)
        = 0;
    // A download the user asked for: progress until `downloadEnded`. `onCancel` stops it.
    virtual void downloadStarted(const AppcastItem &update, std::function<void()> onCancel) = 0;
    virtual void downloadProgressed(qint64 received, qint64 total) = 0;
    virtual void downloadEnded() = 0;
    // Modal: the download failed or was refused; `message` says why and what became of the file.
    virtual void showDownloadFailed(const QString &message) = 0;
    // The verified file is in place; offer to show it in the file manager. `automatic` when it
    // was fetched without asking.
    virtual void showDownloadReady(const AppcastItem &update, const QString &filePath, bool automatic) = 0;
};
