// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/SettingsWindow.h"

#include "history/ColorListViewModel.h"
#include "screens/SettingsView.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>

namespace {
constexpr QSize contentSize(450, 520);
}

SettingsWindow::SettingsWindow(SettingsStore &store, HotkeyManager &hotkeyManager,
    LoginItemService &loginItems, UpdaterController &updaterController, ColorListViewModel *viewModel)
    : m_store(store)
    , m_hotkeyManager(hotkeyManager)
    , m_loginItems(loginItems)
    , m_updaterController(updaterController)
    , m_viewModel(viewModel)
{
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::open()
{
    if (m_view && m_view->isVisible()) {
        m_view->raise();
        m_view->activateWindow();
        return;
    }

    // A closed window is only hidden; it is replaced here, so the new one starts afresh.
    m_view = std::make_unique<SettingsView>(
        m_store, m_hotkeyManager, m_loginItems, m_updaterController, m_viewModel);
    m_view->setWindowFlags(
        Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    m_view->setWindowTitle(QObject::tr("Vantle Settings"));
    m_view->setFixedSize(contentSize);

    // A tray program has no main window to centre on: use the screen the user is working on.
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen)
        m_view->setGeometry(
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, contentSize, screen->availableGeometry()));

    m_view->show();
    m_view->raise();
    m_view->activateWindow();
}
