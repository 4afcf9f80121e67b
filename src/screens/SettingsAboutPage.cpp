// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window's About page: version, updates and where to find the maker.
#include "screens/SettingsView.h"

#include "BuildInfo.h"
#include "screens/SettingsWidgets.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"
#include "services/UpdaterController.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace SettingsWidgets;

QWidget *SettingsView::makeAboutPage()
{
    auto *column = new QWidget;
    column->setFixedWidth(340);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    const auto add = [layout](QWidget *widget) { layout->addWidget(widget, 0, Qt::AlignHCenter); };

    auto *symbol = new QLabel;
    symbol->setPixmap(
        Symbols::pixmap(QStringLiteral("eyedropper"), 48, Theme::accent(palette()), devicePixelRatioF()));
    symbol->setFixedSize(48, 48);
    add(symbol);
    add(textLabel(tr("vantle"), 20, true));
    add(secondaryLabel(tr("Version %1").arg(QString::fromUtf8(BuildInfo::version)), 13));
    QLabel *tagline = secondaryLabel(tr("Pick any color from anywhere on your screen with one click."), 13);
    tagline->setWordWrap(true);
    tagline->setAlignment(Qt::AlignHCenter);
    layout->addWidget(tagline);
    add(divider(200));

    // Update controls
    auto *updates = new QWidget;
    auto *updatesLayout = new QVBoxLayout(updates);
    updatesLayout->setContentsMargins(0, 0, 0, 0);
    updatesLayout->setSpacing(8);
    m_checkForUpdatesButton = new QPushButton(tr("Check for Updates…"));
    m_checkForUpdatesButton->setEnabled(m_updaterController.canCheckForUpdates());
    connect(m_checkForUpdatesButton, &QPushButton::clicked, this,
        [this] { m_updaterController.checkForUpdates(); });
    connect(&m_updaterController, &UpdaterController::canCheckForUpdatesChanged, m_checkForUpdatesButton,
        &QWidget::setEnabled);
    m_automaticDownloadToggle = new QCheckBox(tr("Automatically download updates"));
    m_automaticDownloadToggle->setFont(Theme::withPixelSize(m_automaticDownloadToggle->font(), 13));
    secondary(m_automaticDownloadToggle);
    m_automaticDownloadToggle->setChecked(m_updaterController.automaticallyDownloadsUpdates());
    connect(m_automaticDownloadToggle, &QCheckBox::clicked, this,
        [this](bool on) { m_updaterController.setAutomaticallyDownloadsUpdates(on); });
    connect(&m_updaterController, &UpdaterController::automaticallyDownloadsUpdatesChanged,
        m_automaticDownloadToggle, &QCheckBox::setChecked);
    updatesLayout->addWidget(m_checkForUpdatesButton, 0, Qt::AlignHCenter);
    updatesLayout->addWidget(m_automaticDownloadToggle, 0, Qt::AlignHCenter);
    add(updates);
    add(divider(200));

    // Links: an address the build does not carry shows no link at all.
    const QString makerName = QString::fromUtf8(BuildInfo::makerName);
    const QString website = QString::fromUtf8(BuildInfo::websiteUrl);
    if (!website.isEmpty())
        add(linkLabel(tr("Vantle Website"), QUrl(website), 13));
    auto *maker = new QWidget;
    auto *makerLayout = new QVBoxLayout(maker);
    makerLayout->setContentsMargins(0, 0, 0, 0);
    makerLayout->setSpacing(4);
    const QString makerUrl = QString::fromUtf8(BuildInfo::makerUrl);
    if (!makerUrl.isEmpty())
        makerLayout->addWidget(
            linkLabel(tr("%1 Website").arg(makerName), QUrl(makerUrl), 12), 0, Qt::AlignHCenter);
    const QString support = QString::fromUtf8(BuildInfo::supportEmail);
    if (!support.isEmpty()) {
        makerLayout->addWidget(
            linkLabel(support, QUrl(QStringLiteral("mailto:") + support), 12), 0, Qt::AlignHCenter);
    }
    if (!makerName.isEmpty())
        makerLayout->addWidget(secondaryLabel(tr("Made by %1.").arg(makerName), 11), 0, Qt::AlignHCenter);
    add(maker);

    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(32, 24, 32, 24);
    pageLayout->addStretch(1);
    pageLayout->addWidget(column, 0, Qt::AlignHCenter);
    pageLayout->addStretch(1);
    return scrolling(page);
}
