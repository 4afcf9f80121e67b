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

    // A tray program has no main window to centre on: use the screen the user is working on.
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    QRect room = screen ? screen->availableGeometry() : QRect(QPoint(0, 0), contentSize);
    room.adjust(4, 4, -4, -4);
    // The window manager adds a title bar above the content: the window with its frame fits the
    // room, placed by the frame's corner (move()), so the title bar is never above the screen's
    // top edge nor the window's foot below its bottom.
    const int titleBar = m_view->style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8;
    const QSize size = contentSize.boundedTo(room.size() - QSize(0, titleBar));
    m_view->setFixedSize(size);
    m_view->move(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size + QSize(0, titleBar), room).topLeft());

    m_view->show();
    m_view->raise();
    m_view->activateWindow();
}
