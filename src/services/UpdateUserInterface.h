#pragma once

#include <QString>
#include <functional>

struct AppcastItem;

// What the updater shows the user. The desktop backend uses dialogs; tests answer in code.
//
// A backend must guarantee: main thread only; the methods marked modal return only after the
// user answered; none of them calls back into the updater except through `onCancel`.
class UpdateUserInterface {
public:
    enum class Choice { download, remindLater, skipThisVersion };

    virtual ~UpdateUserInterface() = default;

    // Modal: "You're up to date!" with "<name> <version> is the latest version.".
    virtual void showUpToDate(const QString &name, const QString &version) = 0;
    // Modal: a newer release with its notes; the user chooses what to do.
    virtual Choice askAboutUpdate(
        const AppcastItem &update, const QString &name, const QString &currentVersion)
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
