// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingWindow.h"

#include "screens/OnboardingView.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainterPath>
#include <QScreen>
#include <QToolButton>
#include <QWindow>

OnboardingWindow::OnboardingWindow(
    SettingsStore &store, std::function<void()> onComplete, bool isCutToShape, QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_isCutToShape(isCutToShape)
    , m_view(new OnboardingView(store, std::move(onComplete), this))
    , m_closeButton(new QToolButton(this))
{
    // The view paints its own rounded background; the corners stay see-through.
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(tr("Welcome to vantle"));
    setFixedSize(m_view->size());
    m_view->move(0, 0);
    m_closeButton->setObjectName(QStringLiteral("onboardingClose"));
    m_closeButton->setAccessibleName(tr("Close"));
    m_closeButton->setText(QStringLiteral("\u00D7"));
    m_closeButton->setCursor(Qt::ArrowCursor);
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    m_closeButton->setGeometry(16, 16, 14, 14);
    m_closeButton->setStyleSheet(
        QStringLiteral("QToolButton { border: none; border-radius: 7px; background: #30363D; color: #8B949E;"
                       " font-size: 12px; font-weight: bold; padding: 0 0 1px 0; }"
                       "QToolButton:hover { background: #FF5F57; color: #4D0000; }"));
    connect(m_closeButton, &QToolButton::clicked, this, &QWidget::close);
    m_view->setFocus();
}

void OnboardingWindow::present()
{
    if (const QScreen *target = screen()) {
        const QRect available = target->availableGeometry();
        move(available.center() - QPoint(width() / 2, height() / 2));
    }
    show();
    if (m_isCutToShape) {
        // No compositor: cut the window to the view's rounded frame so the corners show the
        // desktop rather than black.
        QPainterPath frame;
        frame.addRoundedRect(QRectF(rect()), OnboardingView::cornerRadius, OnboardingView::cornerRadius);
        setMask(QRegion(frame.toFillPolygon().toPolygon()));
    }
    raise();
    activateWindow();
}

void OnboardingWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void OnboardingWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    // The window manager moves it best (snapping, Wayland); by hand only where it cannot.
    if (windowHandle() && windowHandle()->startSystemMove())
        return;
    m_dragOffset = event->globalPosition().toPoint() - frameGeometry().topLeft();
}

void OnboardingWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragOffset)
        move(event->globalPosition().toPoint() - *m_dragOffset);
}

void OnboardingWindow::mouseReleaseEvent(QMouseEvent *)
{
    m_dragOffset.reset();
}
