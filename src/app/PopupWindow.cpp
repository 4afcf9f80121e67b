#include "app/PopupWindow.h"

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
constexpr int gapBelowAnchor = 4;

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

PopupWindow::PopupWindow(QWidget *parent)
    : QWidget(parent)
{
    setStandalone(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

void PopupWindow::setStandalone(bool standalone)
{
    m_standalone = standalone;
    const bool visible = isVisible();
    if (standalone) {
        setWindowFlags(Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
        setWindowTitle(QStringLiteral("Vantle"));
    } else if (isWayland()) {
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

QPoint PopupWindow::placement(
    const QRect &anchor, const QPoint &pointer, const QSize &size, const QRect &available)
{
    QPoint origin;
    if (anchor.isValid() && !anchor.isEmpty()) {
        origin = QPoint(anchor.center().x() - size.width() / 2, anchor.bottom() + 1 + gapBelowAnchor);
        // A panel at the bottom of the screen: open above the icon instead.
        if (origin.y() + size.height() > available.bottom() + 1)
            origin.setY(anchor.top() - gapBelowAnchor - size.height());
    } else {
        origin = QPoint(pointer.x() - size.width() / 2, pointer.y() + gapBelowAnchor);
    }
    origin.setX(
        qBound(available.left(), origin.x(), qMax(available.left(), available.right() + 1 - size.width())));
    origin.setY(
        qBound(available.top(), origin.y(), qMax(available.top(), available.bottom() + 1 - size.height())));
    return origin;
}

void PopupWindow::popUp(const QRect &anchor)
{
    ensureContent();
    adjustSize();
    const QPoint pointer = QCursor::pos();
    QScreen *screen = QGuiApplication::screenAt(anchor.isValid() ? anchor.center() : pointer);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen && !m_standalone)
        move(placement(anchor, pointer, sizeHint().expandedTo(size()), screen->availableGeometry()));
    show();
    raise();
    activateWindow();
    if (m_content)
        m_content->setFocus(Qt::PopupFocusReason);
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
        m_closedAtMs = QGuiApplication::mouseButtons() != Qt::NoButton ? QDateTime::currentMSecsSinceEpoch() : 0;
    Q_EMIT closed();
}

bool PopupWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate && !m_standalone && isWayland())
        hide();
    return QWidget::event(event);
}
