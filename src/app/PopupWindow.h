// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

class WindowRoles;

// The window under the tray icon that hosts the colour list. Frameless; it closes when the user
// clicks elsewhere or presses Escape, and takes keyboard focus when it opens.
//
// Where the desktop has no system tray, the same window is an ordinary small window instead
// (`setStandalone(true)`), which the user can move and close; Vantle keeps running.
class PopupWindow : public QWidget {
    Q_OBJECT
public:
    // `isWayland`: the compositor places windows and a popup needs a parent surface, so the
    // popup is a tool window that closes when it loses activation. `roles` tell the desktop
    // that it opens at the tray and stays out of the task bar (null where it needs no telling).
    explicit PopupWindow(bool isWayland, WindowRoles *roles = nullptr, QWidget *parent = nullptr);

    // Replaces the hosted content (the previous one is deleted). `makeContent` runs when the
    // content is first needed: the window opening, or at once if it is open. Until the user
    // opens the popup, the list, its rows and the fonts they load cost no memory.
    void setContent(std::function<QWidget *()> makeContent);
    QWidget *content();

    void setStandalone(bool standalone);
    bool isStandalone() const { return m_standalone; }

    // Shows the window next to `anchor` (the tray icon's screen rectangle) on the side away
    // from the panel, or near the pointer when the anchor is unknown, kept inside the
    // available area of that screen and off the icon.
    // The content takes the keyboard focus for `reason`: a keyboard reason (the popup's
    // shortcut) shows where the focus is at once.
    void popUp(const QRect &anchor, Qt::FocusReason reason = Qt::PopupFocusReason);
    // The height the content may take at the last opening; the content scrolls within it.
    int heightLimit() const { return m_heightLimit; }

    // True for a short moment after the popup closed because of a click outside it: the click
    // on the tray icon that closed it must not open it again at once.
    bool justClosedByOutsideClick() const;

    // Pure geometry. `room` is where the popup may lie for an anchor on a screen: beside the
    // icon on the side away from the panel (the screen edge the icon is nearest to, or the one
    // whose panel the available area leaves out), within the available area; the whole
    // available area near the pointer when the anchor is unknown. `placement` is where a popup
    // of `size` goes in that room: against the icon, centred on it where the room allows.
    static QRect room(const QRect &anchor, const QRect &screen, const QRect &available);
    static QPoint placement(const QRect &anchor, const QPoint &pointer, const QSize &size, const QRect &room);

Q_SIGNALS:
    void closed();
    // Before the window sizes itself to its content at an opening: the content must not be
    // taller than this.
    void heightLimitChanged(int heightLimit);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void ensureContent();

    const bool m_isWayland;
    WindowRoles *const m_roles;
    std::function<QWidget *()> m_makeContent;
    QPointer<QWidget> m_content;
    bool m_standalone = false;
    int m_heightLimit = QWIDGETSIZE_MAX;
    // Where the last opening placed the window, to place it again when its content changes
    // size (the detail screen is taller than a short list).
    struct Placed {
        QRect anchor;
        QPoint pointer;
        QRect room;
    };
    std::optional<Placed> m_placed;
    qint64 m_closedAtMs = 0;
};
