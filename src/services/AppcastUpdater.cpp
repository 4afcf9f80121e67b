// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/AppcastUpdater.h"

#include "services/BoundedFetch.h"
#include "services/DownloadFileName.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/UpdateNetwork.h"
#include "services/UpdateSignature.h"
#include "services/UpdateUserInterface.h"

#include <QDir>
#include <utility>

AppcastUpdater::AppcastUpdater(SettingsStore &store, UpdateNetwork &network, UpdateUserInterface &ui,
    UpdateBundle bundle, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_network(network)
    , m_ui(ui)
    , m_bundle(std::move(bundle))
{
    m_nextCheck.setSingleShot(true);
    connect(&m_nextCheck, &QTimer::timeout, this, &AppcastUpdater::runBackgroundCheck);
}

AppcastUpdater::~AppcastUpdater()
{
    // A half-written download is not left behind when the program quits. The transfer's own
    // answer finds no download any more and does nothing.
    if (const std::unique_ptr<Download> d = std::move(m_download)) {
        if (d->transfer)
            m_network.abort(d->transfer);
        d->file.close();
        d->file.remove();
    }
    if (m_feedTransfer)
        m_network.abort(m_feedTransfer);
}

void AppcastUpdater::setAutomaticallyDownloadsUpdates(bool automatic)
{
    // Only what a found release leads to changes; the checks go on either way.
    m_automatic = automatic;
}

void AppcastUpdater::startUpdater()
{
    if (m_started)
        return;
    m_started = true;
    runBackgroundCheck();
}

void AppcastUpdater::scheduleNextCheck()
{
    if (m_started)
        m_nextCheck.start(m_bundle.checkInterval);
}

void AppcastUpdater::runBackgroundCheck()
{
    const QUrl url(m_bundle.feedUrl, QUrl::StrictMode);
    if (!canCheckForUpdates() || !url.isValid() || url.host().isEmpty())
        return scheduleNextCheck();
    beginCheck();
    m_feedTransfer = BoundedFetch::get(m_network, url, m_bundle.transferTimeout,
        BoundedFetch::maximumFeedSize, this, [this](const BoundedFetch::Result &result) {
            endCheck();
            scheduleNextCheck();
            // The user asked meanwhile: the answer is theirs to see, as if they had fetched it.
            if (const auto onFeed = std::exchange(m_onRunningFeed, {}))
                return onFeed(result);
            std::optional<AppcastItem> update;
            if (result.ok && result.status == 200)
                update = Appcast::newestUpdate(result.body, m_bundle.version);
            const auto skipped = m_store.stringForKey(PreferenceKeys::skippedUpdateVersion);
            if (!update || (skipped && *skipped == update->version))
                return;
            if (m_automatic)
                startDownload(*update, true);
            else
                offerUpdate(*update);
        });
}

bool AppcastUpdater::followRunningCheck(std::function<void(const BoundedFetch::Result &)> onFeed)
{
    if (m_feedTransfer) {
        m_onRunningFeed = std::move(onFeed);
        return true;
    }
    if (m_download && m_download->automatic && !m_download->watched && m_download->transfer) {
        m_download->watched = true;
        watchDownload();
        return true;
    }
    return false;
}

void AppcastUpdater::presentUpdate(const QByteArray &feed)
{
    const std::optional<AppcastItem> update = Appcast::newestUpdate(feed, m_bundle.version);
    if (!update) {
        m_ui.showUpToDate(m_bundle.name, m_bundle.version);
        return;
    }
    offerUpdate(*update);
}

void AppcastUpdater::offerUpdate(const AppcastItem &update)
{
    beginCheck(); // no second check while the user decides
    m_ui.askAboutUpdate(update, m_bundle.name, m_bundle.version,
        [self = QPointer(this), update](UpdateUserInterface::Choice choice) {
            if (!self)
                return;
            self->endCheck();
            switch (choice) {
            case UpdateUserInterface::Choice::download:
                if (self->canCheckForUpdates())
                    self->startDownload(update, false);
                break;
            case UpdateUserInterface::Choice::skipThisVersion:
                self->m_store.setString(PreferenceKeys::skippedUpdateVersion, update.version);
                break;
            case UpdateUserInterface::Choice::remindLater:
                break;
            }
        });
}

void AppcastUpdater::beginCheck()
{
    if (++m_busyCount == 1)
        Q_EMIT canCheckForUpdatesChanged(false);
}

void AppcastUpdater::endCheck()
{
    if (m_busyCount > 0 && --m_busyCount == 0)
        Q_EMIT canCheckForUpdatesChanged(true);
}

void AppcastUpdater::startDownload(const AppcastItem &update, bool automatic)
{
    // Without a key nothing can be told apart from a forged file, so nothing is fetched.
    if (m_bundle.publicKey.trimmed().isEmpty()) {
        if (!automatic)
            m_ui.showDownloadFailed(
                tr("This copy of %1 has no key to verify updates with, so version %2 was not "
                   "downloaded. Please get it from the %1 website.")
                    .arg(m_bundle.name, update.displayVersion));
        return scheduleNextCheck();
    }

    auto download = std::make_unique<Download>();
    download->update = update;
    download->automatic = automatic;
    download->watched = !automatic;
    QDir().mkpath(m_bundle.downloadFolder);
    const QString fallback = QStringLiteral("%1-%2.update").arg(m_bundle.name, update.version);
    const QString name = DownloadFileName::safeFileName(
        update.downloadUrl, DownloadFileName::safeFileName(QUrl(fallback), QStringLiteral("update")));
    download->file.setFileName(DownloadFileName::unusedPath(m_bundle.downloadFolder, name));
    // NewOnly: even a file that appeared a moment ago is never overwritten.
    if (!download->file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        if (!automatic)
            m_ui.showDownloadFailed(tr("The update could not be saved in %1.")
                                        .arg(QDir::toNativeSeparators(m_bundle.downloadFolder)));
        return scheduleNextCheck();
    }

    m_download = std::move(download);
    beginCheck();

    UpdateNetwork::Handlers handlers;
    handlers.onData = [this](const QByteArray &chunk) {
        if (!m_download)
            return false;
        Download &d = *m_download;
        // A body longer than the feed promised is cut off at once instead of filling the disk.
        if (d.file.size() + chunk.size() > d.update.length) {
            d.tooLong = true;
            return false;
        }
        if (d.file.write(chunk) != chunk.size()) {
            d.writeFailed = true;
            return false;
        }
        return true;
    };
    handlers.onProgress = [this](qint64 received) {
        if (m_download && m_download->watched)
            m_ui.downloadProgressed(received, m_download->update.length);
    };
    handlers.onFinished = [this](bool ok, int status) {
        if (m_download)
            finishDownload(ok, status);
    };
    m_download->transfer
        = m_network.get(update.downloadUrl, m_bundle.transferTimeout, this, std::move(handlers));
    if (!automatic)
        watchDownload();
}

void AppcastUpdater::watchDownload()
{
    m_ui.downloadStarted(m_download->update, [guard = QPointer<AppcastUpdater>(this), d = m_download.get()] {
        if (guard && guard->m_download.get() == d)
            guard->cancelDownload();
    });
}

void AppcastUpdater::cancelDownload()
{
    m_download->cancelled = true;
    if (m_download->transfer)
        m_network.abort(m_download->transfer);
}

void AppcastUpdater::finishDownload(bool ok, int status)
{
    std::unique_ptr<Download> d = std::move(m_download);
    const bool flushed = d->file.flush();
    d->file.close();
    endCheck();
    if (d->watched)
        m_ui.downloadEnded();

    QString failure;
    if (d->cancelled) {
        d->file.remove();
    } else if (d->tooLong) {
        failure = verificationFailure(int(UpdateSignature::Verdict::wrongLength));
    } else if (d->writeFailed || !flushed) {
        failure = tr("The update could not be saved in %1, so the partial file was deleted.")
                      .arg(QDir::toNativeSeparators(m_bundle.downloadFolder));
    } else if (!ok || status != 200) {
        failure = tr("The update could not be downloaded, so the partial file was deleted.");
    } else {
        const auto verdict = m_network.verifyDownload(
            d->file.fileName(), d->update.length, d->update.edSignature, m_bundle.publicKey);
        if (verdict != UpdateSignature::Verdict::verified)
            failure = verificationFailure(int(verdict));
    }

    if (!failure.isEmpty()) {
        d->file.remove();
        // Quiet background checks still speak up when a file was refused: that may be an attack.
        const bool networkOnly = !ok && !d->tooLong;
        if (d->watched || !networkOnly)
            m_ui.showDownloadFailed(failure);
    } else if (!d->cancelled) {
        m_ui.showDownloadReady(d->update, d->file.fileName(), d->automatic);
    }
    scheduleNextCheck();
}

QString AppcastUpdater::verificationFailure(int verdict) const
{
    switch (UpdateSignature::Verdict(verdict)) {
    case UpdateSignature::Verdict::noPublicKey:
        return tr(
            "This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. "
            "Please get the new version from the %1 website.")
            .arg(m_bundle.name);
    case UpdateSignature::Verdict::wrongLength:
        return tr("The downloaded file does not have the size the update feed announced, so it was deleted.");
    case UpdateSignature::Verdict::badSignature:
        return tr(
            "The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.")
            .arg(m_bundle.name);
    case UpdateSignature::Verdict::unreadable:
        return tr("The downloaded file could not be read back for checking, so it was deleted.");
    case UpdateSignature::Verdict::verified:
        break;
    }
    return {};
}
