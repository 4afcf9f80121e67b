// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window's third page: the maker's other applications.
#include "screens/SettingsView.h"

#include "BuildInfo.h"
#include "screens/SettingsWidgets.h"

#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

using namespace SettingsWidgets;

namespace {

struct MakerApplication {
    QString name;
    QString description;
    QString address;
};

// The build's list of the maker's applications: "Name|Description|Address" entries separated by
// semicolons. Entries without a name are dropped.
QList<MakerApplication> makerApplications()
{
    QList<MakerApplication> applications;
    const QString list = QString::fromUtf8(BuildInfo::makerApps);
    for (const QString &entry : list.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(QLatin1Char('|'));
        MakerApplication application { parts.value(0).trimmed(), parts.value(1).trimmed(),
            parts.value(2).trimmed() };
        if (!application.name.isEmpty())
            applications.append(application);
    }
    return applications;
}

} // namespace

QWidget *SettingsView::makeMorePage()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    const QString makerName = QString::fromUtf8(BuildInfo::makerName);

    const QList<MakerApplication> applications = makerApplications();
    for (const MakerApplication &application : applications) {
        auto *row = new QFrame;
        row->setFrameShape(QFrame::StyledPanel);
        auto *rowLayout = new QVBoxLayout(row);
        rowLayout->setSpacing(4);
        rowLayout->addWidget(textLabel(application.name, 14, true));
        if (!application.description.isEmpty()) {
            QLabel *description = secondaryLabel(application.description, 12);
            description->setWordWrap(true);
            rowLayout->addWidget(description);
        }
        const QUrl address(application.address);
        if (address.isValid() && !address.isEmpty())
            rowLayout->addWidget(linkLabel(tr("Learn More"), address, 12));
        layout->addWidget(row);
    }
    if (applications.isEmpty()) {
        layout->addStretch(1);
        QLabel *none
            = secondaryLabel(tr("No other %1 applications are listed in this build.").arg(makerName), 13);
        none->setWordWrap(true);
        none->setAlignment(Qt::AlignHCenter);
        layout->addWidget(none);
    }
    const QString makerUrl = QString::fromUtf8(BuildInfo::makerUrl);
    if (!makerUrl.isEmpty())
        layout->addWidget(
            linkLabel(tr("All %1 applications").arg(makerName), QUrl(makerUrl), 13), 0, Qt::AlignHCenter);
    layout->addStretch(1);

    QScrollArea *area = scrolling(content);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    return area;
}
