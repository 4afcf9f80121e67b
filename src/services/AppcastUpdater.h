// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/Appcast.h"
#include "services/BoundedFetch.h"
#include "services/UpdateBundle.h"

#include <QFile>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

class SettingsStore;
class UpdateNetwork;
class UpdateUserInterface;

// The program's own update framework: reads the appcast, offers the newest release, downloads
// it into the download folder and checks its length and signature before anyone may open it.
// Nothing is ever installed behind the user's back; a verified file is only offered.
//
// A quiet check runs when the updater starts and once a day after that (one single-shot timer;
// nothing runs in between). A release it finds, unless skipped, is downloaded without asking
// while updates download automatically, and offered in the update dialog otherwise. Everything
// on the main thread; the network work is asynchronous.
class AppcastUpdater : public QObject {
    Q_OBJECT
public:
    AppcastUpdater(SettingsStore &store, UpdateNetwork &network, UpdateUserInterface &ui, UpdateBundle bundle,
        QObject *parent = nullptr);
    ~AppcastUpdater() override;

    // False while a check or a download runs.
    bool canCheckForUpdates() const { return m_busyCount == 0; }

    void setAutomaticallyDownloadsUpdates(bool automatic);
    bool automaticallyDownloadsUpdates() const { return m_automatic; }

    // Starts the background checks. Called once at launch.
    void startUpdater();

    // The user asked, and `feed` is the appcast just fetched: show the newest release (or that
    // there is none) and act on the user's choice.
    void presentUpdate(const QByteArray &feed);

    // Marks the updater busy around a check done on its behalf (the controller's own fetch).
    void beginCheck();
    void endCheck();

    // The user asked while the updater is busy. A background check under way hands its feed to
    // `onFeed` instead of acting on it; a quiet download under way shows its progress and its
    // outcome from now on. False when neither runs (the user is already looking at the
    // update dialog).
    bool followRunningCheck(std::function<void(const BoundedFetch::Result &)> onFeed);

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheck);

private:
    void scheduleNextCheck();
    void runBackgroundCheck();
    void offerUpdate(const AppcastItem &update);
    void startDownload(const AppcastItem &update, bool automatic);
    void watchDownload();
    void finishDownload(bool ok, int status);
    void cancelDownload();
    QString verificationFailure(int verdict) const;

    SettingsStore &m_store;
    UpdateNetwork &m_network;
    UpdateUserInterface &m_ui;
    const UpdateBundle m_bundle;
    bool m_automatic = true;
    bool m_started = false;
    int m_busyCount = 0;
    QTimer m_nextCheck;
    QPointer<QObject> m_feedTransfer;
    std::function<void(const BoundedFetch::Result &)> m_onRunningFeed;

    struct Download {
        AppcastItem update;
        bool automatic = false;
        bool watched = false; // by the user: progress and every failure shown
        bool cancelled = false;
        bool tooLong = false;
        bool writeFailed = false;
        QFile file;
        QPointer<QObject> transfer;
    };
    std::unique_ptr<Download> m_download;
};
