#pragma once

#include "platform/SamplerGeometry.h"

#include <QImage>
#include <QWidget>

// The borderless window that covers one screen while the user picks: it shows the frozen
// desktop of that screen, pixel for pixel, with the loupe over it, and reports what the user
// does in device pixels. Holds no pick state; X11ScreenSampler drives it.
class SamplerOverlay : public QWidget {
    Q_OBJECT
public:
    SamplerOverlay();

    // Covers `area` with `frozen`, the screen's own part of the desktop (device pixels).
    void cover(const SamplerGeometry::ScreenArea &area, const QImage &frozen);
    const SamplerGeometry::ScreenArea &area() const { return m_area; }
    // The loupe image at a device position on this screen, or none.
    void showLoupe(const QImage &loupe, const QRect &deviceRect);
    void hideLoupe();
    // Drops the frozen image so that nothing of the desktop stays in memory between picks.
    void release();

Q_SIGNALS:
    void pointerMoved(const QPoint &device);
    void buttonPressed(Qt::MouseButton button, const QPoint &device);
    void buttonReleased();
    void wheelTurned(int notches);
    void keyPressed(int key, Qt::KeyboardModifiers modifiers);
    void closedUnexpectedly();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QRect logicalRect(const QRect &deviceRect) const;

    SamplerGeometry::ScreenArea m_area;
    QImage m_frozen;
    QImage m_loupe;
    QRect m_loupeDevice;
    int m_wheelRemainder = 0;
};
