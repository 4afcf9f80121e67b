// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/SettingsView.h"

#include "BuildInfo.h"
#include "history/ColorListViewModel.h"
#include "hotkeys/HotkeyManager.h"
#include "hotkeys/HotkeyRecorderView.h"
#include "model/ColorFormat.h"
#include "screens/SettingsTabButton.h"
#include "screens/SettingsWidgets.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <array>

using namespace SettingsWidgets;

SettingsView::SettingsView(SettingsStore &store, HotkeyManager &hotkeyManager, LoginItemService &loginItems,
    UpdaterController &updaterController, ColorListViewModel *viewModel, QWidget *parent)
    : QWidget(parent)
    , m_store(store)
    , m_hotkeyManager(hotkeyManager)
    , m_loginItems(loginItems)
    , m_updaterController(updaterController)
    , m_viewModel(viewModel)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTabBar());
    layout->addWidget(divider());

    m_pages = new QStackedWidget;
    m_pages->addWidget(makeGeneralPage());
    m_pages->addWidget(makeAboutPage());
    m_pages->addWidget(makeMorePage());
    // On a small screen with a large font the pages are taller than the window may be: they
    // scroll below the tabs rather than run off the screen.
    auto *scroller = new QScrollArea;
    scroller->setObjectName(QStringLiteral("settingsPages"));
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus); // Tab goes through the controls, not the pane
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setWidget(m_pages);
    scroller->viewport()->setAutoFillBackground(false);
    m_pages->setAutoFillBackground(false);
    layout->addWidget(scroller, 1);

    connect(&m_store, &SettingsStore::changed, this, &SettingsView::showStoredValue);
    setSelectedTab(generalTab);
}

SettingsView::~SettingsView()
{
    // The recorders outlive this part of the object (QWidget deletes its children later) and
    // stop listening when hidden then: they must no longer call back into it.
    for (HotkeyRecorderView *recorder : { m_pickRecorder, m_popoverRecorder })
        if (recorder)
            recorder->setOnRecordingChanged({});
    // A window torn down while a recorder listens must not leave the global shortcuts released.
    m_hotkeyManager.setSuspended(false);
}

void SettingsView::setSelectedTab(int tab)
{
    m_selectedTab = tab;
    // Any id other than About's and the maker's page shows General.
    const int page = (tab == aboutTab || tab == moreTab) ? tab : generalTab;
    m_pages->setCurrentIndex(page);
    m_tabButtons.at(page)->setChecked(true);
}

QWidget *SettingsView::makeTabBar()
{
    struct TabInfo {
        int id;
        QString label;
        QString symbol;
    };
    const std::array<TabInfo, 3> tabs = { {
        { generalTab, tr("General"), QStringLiteral("gear") },
        { aboutTab, tr("About"), QStringLiteral("info.circle") },
        //: The tab of the maker's other applications; %1 is the maker's name
        { moreTab, tr("More %1").arg(QString::fromUtf8(BuildInfo::makerName)),
            QStringLiteral("square.grid.2x2") },
    } };

    auto *bar = new QWidget;
    // Read as the page tab list it is (AccessibleSettingsWidgets).
    bar->setObjectName(QStringLiteral("settingsTabBar"));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(2);
    auto *group = new QButtonGroup(bar);
    for (const TabInfo &tab : tabs) {
        auto *button = new SettingsTabButton(tab.label, tab.symbol);
        group->addButton(button, tab.id);
        layout->addWidget(button, 1);
        m_tabButtons.append(button);
        connect(button, &QAbstractButton::clicked, this, [this, id = tab.id] { setSelectedTab(id); });
    }
    return bar;
}

void SettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The login item wins here: the toggle shows whether the program really starts at login.
    LaunchAtLogin::refreshLaunchAtLogin(m_store, m_loginItems);
}

void SettingsView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        close();
    else
        QWidget::keyPressEvent(event);
}

void SettingsView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The desktop switched between light and dark: the tinted texts follow.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        const QPalette window = palette();
        for (QWidget *widget : findChildren<QWidget *>())
            applyTone(widget, window);
    }
}
