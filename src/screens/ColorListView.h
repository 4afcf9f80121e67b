// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/PickedColor.h"
#include "screens/ColorDetailView.h"
#include "screens/RenameColorSheet.h"

#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

class CapsuleLabel;
class ColorListFooter;
class ColorListViewModel;
class ColorRowView;
class QMenu;
class QScrollArea;
class SettingsStore;
class SymbolButton;

// The content of the tray popup, 320 pixels wide: the header with the colour count, "Pick
// Color", the history in PINNED and RECENT sections, and the footer with settings, export and
// quit. A click on a row copies the colour and replaces the list with its detail screen;
// "Back" (or Escape) returns. The view holds no history of its own: it reads the model,
// rebuilds when the model signals a change, and sends every action to the model.
//
// The height follows the content (the colour list scrolls beyond `maximumListHeight`), so a
// host window should take the view's size hint whenever it changes; the root layout keeps the
// view itself at that size.
class ColorListView : public QWidget {
    Q_OBJECT
public:
    static constexpr int viewWidth = 320;
    static constexpr int maximumListHeight = 420;
    static constexpr int screenChangeMilliseconds = 200;

    ColorListView(ColorListViewModel &viewModel, SettingsStore &store, std::function<void()> onOpenSettings,
        std::function<void()> onQuit, QWidget *parent = nullptr);

    // The colour whose detail screen is shown, as it was when opened; none while the list shows.
    const std::optional<PickedColor> &selectedColor() const { return m_selectedColor; }
    // The detail screen while one is shown, else null.
    ColorDetailView *detailView() const { return m_detail; }
    // The rows in display order: pinned first, then recent.
    QList<ColorRowView *> rows() const { return m_rows; }
    QMenu *exportMenu() const;

    // What a click on a row does: copy in the preferred format, then open the detail screen.
    void openColor(const PickedColor &color, Qt::FocusReason reason = Qt::OtherFocusReason);
    // Back to the list, as the detail screen's "Back" does.
    void closeDetail();
    // The rename sheet of a row's "Rename…", in place of the list until it is saved or
    // cancelled; the list then shows again, with the new name.
    RenameColorSheet *openRenameSheet(const PickedColor &color);
    RenameColorSheet *renameSheet() const { return m_renameSheet; }
    // The tallest the view may be (the room the popup has beside the tray icon): the colour
    // list and the detail screen scroll within it.
    void setHeightLimit(int heightLimit);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QWidget *buildHeader();
    QWidget *buildPickButton();
    QWidget *buildEmptyState();
    QWidget *buildSectionHeader(const QString &title, const QString &objectName);
    ColorRowView *buildRow(const PickedColor &color, ColorFormat format);
    void rebuildColors();
    void fitListHeight();
    void updatePicking();
    void fadeIn(QWidget *screen);
    void closeRenameSheet();
    // Where the keyboard focus goes back to after a screen closes: the row it was opened
    // from, else the pick button.
    void refocusRow(const QUuid &id, Qt::FocusReason reason);
    void moveRowFocus(ColorRowView *from, int key);
    // The list is one Tab stop: the row that had the focus last (the first at the start).
    void makeTabStop(ColorRowView *row);

    ColorListViewModel &m_viewModel;
    SettingsStore &m_store;
    std::optional<PickedColor> m_selectedColor;
    int m_heightLimit = QWIDGETSIZE_MAX;

    QWidget *m_listScreen = nullptr;
    QPointer<ColorDetailView> m_detail;
    QPointer<RenameColorSheet> m_renameSheet;
    CapsuleLabel *m_countBadge = nullptr;
    SymbolButton *m_pickButton = nullptr;
    QWidget *m_content = nullptr; // empty state or the scrolling list
    QScrollArea *m_scroll = nullptr;
    QWidget *m_emptyState = nullptr;
    QList<ColorRowView *> m_rows;
    ColorListFooter *m_footer = nullptr;
};
