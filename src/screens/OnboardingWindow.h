// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>

class OnboardingView;
class QToolButton;
class SettingsStore;

// The one-time welcome window: 520 × 420, no title bar, rounded dark background, a small close
// button, dragged by its background and kept above other windows. The host opens it with
// `present()`; `onComplete` ("Start Using vantle") is the host's cue to record and close it.
// Closing it with its own button does nothing else.
class OnboardingWindow : public QWidget {
    Q_OBJECT
public:
    // `isCutToShape`: the desktop shows no translucent windows (no compositor), so the window
    // is cut to its rounded frame instead.
    OnboardingWindow(
        SettingsStore &store, std::function<void()> onComplete, bool isCutToShape, QWidget *parent = nullptr);

    OnboardingView *view() const { return m_view; }

    // Centres the window on its screen, shows it above the others and activates it.
    void present();

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool m_isCutToShape;
    OnboardingView *m_view;
    QToolButton *m_closeButton;
    // Where the pointer grabbed the window, while dragging without the window manager's help.
    std::optional<QPoint> m_dragOffset;
};
