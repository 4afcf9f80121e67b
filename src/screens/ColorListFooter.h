// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class ColorListViewModel;
class QAction;
class QMenu;

// The foot of the colour list: Settings, the export menu and Quit. The export entries run only
// when there is something to export (pinned colours for the "Pinned" ones).
class ColorListFooter : public QWidget {
    Q_OBJECT
public:
    ColorListFooter(ColorListViewModel &viewModel, std::function<void()> onOpenSettings,
        std::function<void()> onQuit, QWidget *parent = nullptr);

    QMenu *exportMenu() const { return m_exportMenu; }
    void setExportable(bool hasPinned, bool hasColors);

private:
    QMenu *m_exportMenu = nullptr;
    QAction *m_exportPinnedText = nullptr;
    QAction *m_exportPinnedJson = nullptr;
    QAction *m_exportAllText = nullptr;
    QAction *m_exportAllJson = nullptr;
};
