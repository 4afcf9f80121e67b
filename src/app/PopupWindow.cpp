// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PopupWindow.h"

#include "history/WindowRoles.h"

#include <QCursor>
#include <QDateTime>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace {

// A click on the tray icon while the popup is open first closes the popup (a click outside)
// and then reaches the icon; within this window it counts as the same click.
constexpr qint64 outsideClickWindowMs = 350;
// Between the tray icon and the popup.
constexpr int gapToAnchor = 4;

} // namespace

PopupWindow::PopupWindow(bool isWayland, WindowRoles *roles, QWidget *parent)
    : QWidget(parent)
    , m_isWayland(isWayland)
    , m_roles(roles)
{
    setStandalone(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setAttribute(Qt::WA_DeleteOnClose, false);
    // The popup never becomes the active window, and Qt shows tooltips only in the active one:
    // the footer's icon buttons would never say what they are.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAccessibleName(QStringLiteral("Vantle"));
}

void PopupWindow::setStandalone(bool standalone)
{
    m_standalone = standalone;
    const bool visible = isVisible();
    if (standalone) {
        setWindowFlags(Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
        setWindowTitle(QStringLiteral("Vantle"));
    } else if (m_isWayland) {
        // A Wayland popup needs a parent surface a tray program does not have: a frameless
        // tool window that closes when it loses activation does the same job.
        setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    } else {
        setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    }
    if (visible)
        show();
}

void PopupWindow::setContent(std::function<QWidget *()> makeContent)
{
    if (m_content)
        m_content->deleteLater();
    m_content = nullptr;
    m_makeContent = std::move(makeContent);
    if (isVisible())
        ensureContent();
}

QWidget *PopupWindow::content()
{
    ensureContent();
    return m_content;
}

void PopupWindow::ensureContent()
{
    if (m_content || !m_makeContent)
        return;
    m_content = std::exchange(m_makeContent, nullptr)();
    if (m_content) {
        layout()->addWidget(m_content);
        m_content->setFocus();
    }
}

namespace {

enum class Edge { top, bottom, left, right };

// The screen edge the tray's panel lies along. A panel that reserves its space shows as the
// one side the available area leaves out; otherwise the icon's nearest edge, a horizontal one
// on a tie (an icon in the corner of a top panel touches the right edge too).
Edge panelEdge(const QRect &anchor, const QRect &screen, const QRect &available)
{
    const int reservedTop = available.top() - screen.top();
    const int reservedBottom = screen.bottom() - available.bottom();
    const int reservedLeft = available.left() - screen.left();
    const int reservedRight = screen.right() - available.right();
    if (reservedTop > 0 && anchor.top() < available.top())
        return Edge::top;
    if (reservedBottom > 0 && anchor.bottom() > available.bottom())
        return Edge::bottom;
    if (reservedLeft > 0 && anchor.left() < available.left())
        return Edge::left;
    if (reservedRight > 0 && anchor.right() > available.right())
        return Edge::right;
    const int toTop = anchor.top() - screen.top();
    const int toBottom = screen.bottom() - anchor.bottom();
    const int toLeft = anchor.left() - screen.left();
    const int toRight = screen.right() - anchor.right();
    const int vertical = qMin(toTop, toBottom);
    // An icon in a corner touches two edges (at scale 2 a top panel's icon may end on the
    // screen's last column): within its own height of the top or bottom, it sits in a
    // horizontal panel, which is where trays nearly always are.
    if (vertical <= qMax(anchor.height(), qMin(toLeft, toRight)))
        return toTop <= toBottom ? Edge::top : Edge::bottom;
    return toLeft <= toRight ? Edge::left : Edge::right;
}

} // namespace

QRect PopupWindow::room(const QRect &anchor, const QRect &screen, const QRect &available)
{
    if (!anchor.isValid() || anchor.isEmpty())
        return available;
    QRect room = available;
    switch (panelEdge(anchor, screen, available)) {
    case Edge::top:
        room.setTop(qMax(available.top(), anchor.bottom() + 1 + gapToAnchor));
        break;
    case Edge::bottom:
        room.setBottom(qMin(available.bottom(), anchor.top() - 1 - gapToAnchor));
        break;
    case Edge::left:
        room.setLeft(qMax(available.left(), anchor.right() + 1 + gapToAnchor));
        break;
    case Edge::right:
        room.setRight(qMin(available.right(), anchor.left() - 1 - gapToAnchor));
        break;
    }
    return room;
}

QPoint PopupWindow::placement(
    const QRect &anchor, const QPoint &pointer, const QSize &size, const QRect &room)
{
    QPoint origin;
    if (anchor.isValid() && !anchor.isEmpty()) {
        const QPoint centre = anchor.center();
        origin = QPoint(centre.x() - size.width() / 2, centre.y() - size.height() / 2);
        // Against the icon: the room starts or ends beside it.
        if (room.top() > anchor.bottom())
            origin.setY(room.top());
        else if (room.bottom() < anchor.top())
            origin.setY(room.bottom() + 1 - size.height());
        else if (room.left() > anchor.right())
            origin.setX(room.left());
        else if (room.right() < anchor.left())
            origin.setX(room.right() + 1 - size.width());
    } else {
        origin = QPoint(pointer.x() - size.width() / 2, pointer.y() + gapToAnchor);
    }
    origin.setX(qBound(room.left(), origin.x(), qMax(room.left(), room.right() + 1 - size.width())));
    origin.setY(qBound(room.top(), origin.y(), qMax(room.top(), room.bottom() + 1 - size.height())));
    return origin;
}

void PopupWindow::popUp(const QRect &anchor, Qt::FocusReason reason)
{
    ensureContent();
    const QPoint pointer = QCursor::pos();
    QScreen *screen = QGuiApplication::screenAt(anchor.isValid() ? anchor.center() : pointer);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen && !m_standalone) {
        const QRect space = room(anchor, screen->geometry(), screen->availableGeometry());
        m_heightLimit = space.height();
        Q_EMIT heightLimitChanged(m_heightLimit);
        m_placed = Placed { anchor, pointer, space };
        adjustSize();
        move(placement(anchor, pointer, size(), space));
    } else {
        m_placed.reset();
        adjustSize();
    }
    show();
    // On Wayland the tray's place is unknown to us (a StatusNotifierItem host keeps it, and the
    // pointer's place is the compositor's), but a click on the icon leaves the pointer there:
    // the desktop opens the popup under it, inside the area its panels leave free.
    if (m_roles && !m_standalone && windowHandle())
        m_roles->placeUnderPointer(*windowHandle());
    raise();
    activateWindow();
    if (m_content)
        m_content->setFocus(reason);
}

bool PopupWindow::justClosedByOutsideClick() const
{
    return m_closedAtMs != 0 && QDateTime::currentMSecsSinceEpoch() - m_closedAtMs < outsideClickWindowMs;
}

void PopupWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_standalone) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PopupWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    // Only a click outside closes the popup with a button down; a shortcut, `vantle toggle` or
    // Escape must not make the next toggle look like that click reaching the tray icon.
    if (!m_standalone)
        m_closedAtMs
            = QGuiApplication::mouseButtons() != Qt::NoButton ? QDateTime::currentMSecsSinceEpoch() : 0;
    Q_EMIT closed();
}

void PopupWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Grown or shrunk while open (list to detail screen and back): still against the icon, so
    // above a bottom panel's icon the window grows upwards.
    if (m_placed && !m_standalone)
        move(placement(m_placed->anchor, m_placed->pointer, size(), m_placed->room));
}

bool PopupWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate && !m_standalone && m_isWayland)
        hide();
    return QWidget::event(event);
}
