// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdaterController.h"

#include "services/AppcastUpdater.h"
#include "services/BoundedFetch.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsStore.h"
#include "services/UpdateNetwork.h"
#include "services/UpdateUserInterface.h"

#include <QStringDecoder>
#include <QUrl>

UpdaterController::UpdaterController(SettingsStore &store, UpdateNetwork &network, UpdateUserInterface &ui,
    UpdateBundle bundle, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_network(network)
    , m_ui(ui)
    , m_bundle(std::move(bundle))
{
    m_store.registerDefaults({ Preferences::automaticallyUpdate.registration() });
    m_updater = std::make_unique<AppcastUpdater>(store, network, ui, m_bundle);
    setAutomaticallyDownloadsUpdates(m_store.boolForKey(PreferenceKeys::automaticallyUpdate));
    connect(m_updater.get(), &AppcastUpdater::canCheckForUpdatesChanged, this,
        &UpdaterController::setCanCheckForUpdates);
    setCanCheckForUpdates(m_updater->canCheckForUpdates());
}

UpdaterController::~UpdaterController()
{
    if (m_precheck)
        m_network.abort(m_precheck);
}

void UpdaterController::setAutomaticallyDownloadsUpdates(bool automatic)
{
    const bool changed = automatic != m_automaticallyDownloadsUpdates;
    m_automaticallyDownloadsUpdates = automatic;
    m_updater->setAutomaticallyDownloadsUpdates(automatic);
    m_store.setBool(PreferenceKeys::automaticallyUpdate, automatic);
    if (changed)
        Q_EMIT automaticallyDownloadsUpdatesChanged(automatic);
}

void UpdaterController::startUpdater()
{
    m_updater->startUpdater();
}

void UpdaterController::setCanCheckForUpdates(bool canCheck)
{
    if (canCheck == m_canCheckForUpdates)
        return;
    m_canCheckForUpdates = canCheck;
    Q_EMIT canCheckForUpdatesChanged(canCheck);
}

void UpdaterController::checkForUpdates()
{
    const QUrl url(m_bundle.feedUrl, QUrl::StrictMode);
    const bool web = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    if (!url.isValid() || !web || url.host().isEmpty()) {
        showUpToDateAlert();
        return;
    }
    // A check of the user's own already under way answers this one too.
    if (m_precheck)
        return;
    // A background check or download under way: its outcome is shown when it comes, instead of
    // a second fetch racing it.
    if (!m_updater->canCheckForUpdates()) {
        m_updater->followRunningCheck([this](const BoundedFetch::Result &result) { showOutcome(result); });
        return;
    }
    m_updater->beginCheck();
    m_precheck = BoundedFetch::get(m_network, url, m_bundle.transferTimeout, BoundedFetch::maximumFeedSize,
        this, [this](const BoundedFetch::Result &result) {
            m_updater->endCheck();
            showOutcome(result);
        });
}

void UpdaterController::showOutcome(const BoundedFetch::Result &result)
{
    if (!result.ok || result.status != 200 || result.body.isEmpty()) {
        showUpToDateAlert();
        return;
    }
    // Text that is not UTF-8 counts as empty: no release in it.
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(result.body);
    if (decoder.hasError())
        text.clear();
    if (text.contains(QLatin1String("<item>")) || text.contains(QLatin1String("<item ")))
        m_updater->presentUpdate(result.body);
    else
        showUpToDateAlert();
}

void UpdaterController::showUpToDateAlert()
{
    const QString name = m_bundle.name.isEmpty() ? tr("This app") : m_bundle.name;
    const QString version = m_bundle.version.isEmpty() ? QStringLiteral("1.0") : m_bundle.version;
    m_ui.showUpToDate(name, version);
}
