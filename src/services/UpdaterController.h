// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/BoundedFetch.h"
#include "services/UpdateBundle.h"

#include <QObject>
#include <QPointer>
#include <memory>

class AppcastUpdater;
class SettingsStore;
class UpdateNetwork;
class UpdateUserInterface;

// The update state the settings window shows and edits, and the program's own check in front of
// the updater: before any update interface opens, the feed is fetched once, and a feed that
// cannot be fetched or lists no release at all ends in the plain "You're up to date!" box.
// Made once by the application shell and kept for the whole run; main thread only.
class UpdaterController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    Q_PROPERTY(bool automaticallyDownloadsUpdates READ automaticallyDownloadsUpdates WRITE
            setAutomaticallyDownloadsUpdates NOTIFY automaticallyDownloadsUpdatesChanged)
public:
    // Registers the default "SUAutomaticallyUpdate" = true and takes the stored value. The
    // collaborators are owned by the caller and outlive the controller.
    UpdaterController(SettingsStore &store, UpdateNetwork &network, UpdateUserInterface &ui,
        UpdateBundle bundle = UpdateBundle::fromBuildInfo(), QObject *parent = nullptr);
    ~UpdaterController() override;

    // False while a check or a download runs.
    bool canCheckForUpdates() const { return m_canCheckForUpdates; }

    bool automaticallyDownloadsUpdates() const { return m_automaticallyDownloadsUpdates; }
    // Every assignment, also of an unchanged value, goes to the updater and to the store.
    void setAutomaticallyDownloadsUpdates(bool automatic);

    // Starts the quiet background checks; the application shell calls it once after launch.
    void startUpdater();

    // Without a valid feed address the up-to-date box shows at once (before this returns) and
    // the network is not touched; otherwise the outcome follows when the feed has arrived. Asked
    // while a background check runs, the outcome is that check's; while a quiet download runs,
    // the download's progress and result.
    void checkForUpdates();
    void showUpToDateAlert();

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheck);
    void automaticallyDownloadsUpdatesChanged(bool automatic);

private:
    void setCanCheckForUpdates(bool canCheck);
    void showOutcome(const BoundedFetch::Result &result);

    SettingsStore &m_store;
    UpdateNetwork &m_network;
    UpdateUserInterface &m_ui;
    const UpdateBundle m_bundle;
    std::unique_ptr<AppcastUpdater> m_updater;
    QPointer<QObject> m_precheck;
    bool m_canCheckForUpdates = false;
    bool m_automaticallyDownloadsUpdates = true;
};
