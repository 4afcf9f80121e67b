// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorListFooter.h"

#include "history/ColorListViewModel.h"
#include "screens/SymbolButton.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QMenu>
#include <algorithm>

namespace {

SymbolButton *footerButton(const QString &symbol, int symbolSize, const QString &name, QWidget *parent)
{
    SymbolButton::Style style;
    style.symbol = symbol;
    style.symbolSize = symbolSize;
    style.foreground = &Theme::secondaryText;
    style.radius = 4;
    const int side = 20;
    style.padding = QMargins((side - symbolSize) / 2, (side - symbolSize) / 2, (side - symbolSize + 1) / 2,
        (side - symbolSize + 1) / 2);
    auto *button = new SymbolButton(QString(), style, parent);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

ColorListFooter::ColorListFooter(ColorListViewModel &viewModel, std::function<void()> onOpenSettings,
    std::function<void()> onQuit, QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 10, 6);

    auto *settings = footerButton(QStringLiteral("gearshape"), 12, tr("Settings"), this);
    settings->setObjectName(QStringLiteral("settingsButton"));
    connect(settings, &QAbstractButton::clicked, this, [onOpenSettings = std::move(onOpenSettings)] {
        if (onOpenSettings)
            onOpenSettings();
    });
    row->addWidget(settings);

    auto *exportButton = footerButton(QStringLiteral("square.and.arrow.up"), 12, tr("Export colors"), this);
    exportButton->setObjectName(QStringLiteral("exportButton"));
    m_exportMenu = new QMenu(exportButton);
    m_exportMenu->setObjectName(QStringLiteral("exportMenu"));
    m_exportMenu->setWindowTitle(tr("Export colors")); // what a screen reader calls the menu
    const auto exportAction = [this, &viewModel](const QString &text, bool pinnedOnly, bool asJSON) {
        QAction *action = m_exportMenu->addAction(text);
        connect(action, &QAction::triggered, this,
            [&viewModel, pinnedOnly, asJSON] { viewModel.exportColors(pinnedOnly, asJSON); });
        return action;
    };
    m_exportPinnedText = exportAction(tr("Export Pinned as Text"), true, false);
    m_exportPinnedJson = exportAction(tr("Export Pinned as JSON"), true, true);
    m_exportMenu->addSeparator();
    m_exportAllText = exportAction(tr("Export All as Text"), false, false);
    m_exportAllJson = exportAction(tr("Export All as JSON"), false, true);
    connect(exportButton, &QAbstractButton::clicked, this, [this, exportButton] {
        // popup(), not exec(): the save dialog an entry opens must not run inside a nested loop.
        m_exportMenu->popup(exportButton->mapToGlobal(QPoint(0, exportButton->height())));
        // Opened from the keyboard, the first entry that can run is selected.
        if (exportButton->showsFocusRing()) {
            const QList<QAction *> actions = m_exportMenu->actions();
            const auto first = std::find_if(actions.cbegin(), actions.cend(),
                [](const QAction *action) { return action->isEnabled() && !action->isSeparator(); });
            if (first != actions.cend())
                m_exportMenu->setActiveAction(*first);
        }
    });
    row->addWidget(exportButton);
    row->addStretch(1);

    auto *quit = footerButton(QStringLiteral("power"), 11, tr("Quit vantle"), this);
    quit->setObjectName(QStringLiteral("quitButton"));
    connect(quit, &QAbstractButton::clicked, this, [onQuit = std::move(onQuit)] {
        if (onQuit)
            onQuit();
    });
    row->addWidget(quit);
}

void ColorListFooter::setExportable(bool hasPinned, bool hasColors)
{
    m_exportPinnedText->setEnabled(hasPinned);
    m_exportPinnedJson->setEnabled(hasPinned);
    m_exportAllText->setEnabled(hasColors);
    m_exportAllJson->setEnabled(hasColors);
}
