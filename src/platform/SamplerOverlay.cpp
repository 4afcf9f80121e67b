#include "platform/SamplerOverlay.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

SamplerOverlay::SamplerOverlay()
    : QWidget(nullptr,
              Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::X11BypassWindowManagerHint
                  | Qt::NoDropShadowWindowHint)
{
    // Every pixel is painted from the frozen image: no background fill before each paint.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
}

void SamplerOverlay::cover(const SamplerGeometry::ScreenArea &area, const QImage &frozen)
{
    m_area = area;
    m_frozen = frozen;
    m_frozen.setDevicePixelRatio(area.scale);
    m_loupe = QImage();
    m_loupeDevice = QRect();
    if (geometry() != area.logical)
        setGeometry(area.logical);
}

void SamplerOverlay::release()
{
    m_frozen = QImage();
    m_loupe = QImage();
    m_loupeDevice = QRect();
}

QRect SamplerOverlay::logicalRect(const QRect &deviceRect) const
{
    const QRectF local(QPointF(deviceRect.topLeft() - m_area.device.topLeft()) / m_area.scale,
                       QSizeF(deviceRect.size()) / m_area.scale);
    return local.toAlignedRect().adjusted(-1, -1, 1, 1);
}

void SamplerOverlay::showLoupe(const QImage &loupe, const QRect &deviceRect)
{
    QRegion dirty;
    if (!m_loupeDevice.isNull())
        dirty += logicalRect(m_loupeDevice);
    m_loupe = loupe;
    m_loupe.setDevicePixelRatio(m_area.scale);
    m_loupeDevice = deviceRect;
    dirty += logicalRect(deviceRect);
    update(dirty);
}

void SamplerOverlay::hideLoupe()
{
    if (m_loupeDevice.isNull())
        return;
    update(logicalRect(m_loupeDevice));
    m_loupe = QImage();
    m_loupeDevice = QRect();
}

void SamplerOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // The painter is clipped to the exposed region; with the image's scale equal to the
    // screen's, the raster engine copies device pixels one to one.
    painter.drawImage(QPointF(0, 0), m_frozen);
    if (!m_loupe.isNull()) {
        const QPointF at = QPointF(m_loupeDevice.topLeft() - m_area.device.topLeft()) / m_area.scale;
        painter.drawImage(at, m_loupe);
    }
}

void SamplerOverlay::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointerMoved(SamplerGeometry::deviceFromLocalLogical(m_area, event->position()));
}

void SamplerOverlay::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT buttonPressed(event->button(), SamplerGeometry::deviceFromLocalLogical(m_area, event->position()));
}

void SamplerOverlay::mouseReleaseEvent(QMouseEvent *event)
{
    // The press decided; the pick ends on the release so that it cannot reach anything else.
    event->accept();
    Q_EMIT buttonReleased();
}

void SamplerOverlay::wheelEvent(QWheelEvent *event)
{
    // 120 units a notch; touchpads send fractions of one, collected until a notch is whole.
    m_wheelRemainder += event->angleDelta().y();
    const int notches = m_wheelRemainder / 120;
    m_wheelRemainder -= notches * 120;
    if (notches != 0)
        Q_EMIT wheelTurned(notches);
}

void SamplerOverlay::keyPressEvent(QKeyEvent *event)
{
    Q_EMIT keyPressed(event->key(), event->modifiers());
}

void SamplerOverlay::closeEvent(QCloseEvent *event)
{
    // Something outside asked the window to close (a window killer): the pick ends.
    event->ignore();
    Q_EMIT closedUnexpectedly();
}
