// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEasingCurve>
#include <QList>
#include <QWidget>
#include <array>
#include <functional>

class QParallelAnimationGroup;
class QPainter;
class SettingsStore;

// The content of the one-time welcome window: a welcome screen ("Get Started") and a
// confirmation screen ("Start Using vantle"), painted by hand on a fixed dark palette. Every
// element enters on its own delay with its own curve, driven by Qt's animation framework (a
// test drives time through its own QAnimationDriver).
//
// "Get Started" records `onboardingShown` first, then changes screen; "Start Using vantle" only
// calls `onComplete`, whose host closes the window. Hiding the view stops every animation, and
// a step can never fire after the view is gone (the animations belong to it).
class OnboardingView : public QWidget {
    Q_OBJECT
public:
    // The rounded frame the view paints; the window is cut to it where nothing composites.
    static constexpr qreal cornerRadius = 20;
    // 520 × 420, taller only where the desktop's fonts need it to keep the layout's spacing.
    static constexpr int defaultWidth = 520;
    static constexpr int defaultHeight = 420;

    // Everything that enters or keeps moving; each has a moment it fires and a 0-to-1 progress.
    enum class Step {
        Appeared,
        IconLanded,
        TitleVisible,
        Bullet1Visible,
        Bullet2Visible,
        Bullet3Visible,
        ButtonVisible,
        GlowPulse,
        ScreenChange,
        CircleTrim,
        CheckmarkTrim,
        GreenGlow,
        HeadlineVisible,
        SubtextVisible,
        PreviewVisible,
        Button2Visible,
        Shimmer,
    };
    static constexpr int stepCount = int(Step::Shimmer) + 1;

    struct Timing {
        Step step;
        int delayMs;
        QEasingCurve curve;
        int durationMs;
        bool repeats; // forever; a there-and-back curve makes it reverse on each repeat
    };
    // Measured from the first showing of the view.
    static QList<Timing> welcomeEntrance();
    // Measured from the press of "Get Started".
    static QList<Timing> confirmationEntrance();

    OnboardingView(SettingsStore &store, std::function<void()> onComplete, QWidget *parent = nullptr);
    ~OnboardingView() override;

    int currentScreen() const { return m_currentScreen; }
    bool hasFired(Step step) const { return m_fired[std::size_t(step)]; }
    qreal progress(Step step) const { return m_progress[std::size_t(step)]; }
    // Whether the screen's button has entered: before, it takes no press.
    bool isButtonShown() const { return activeButton() != Button::None; }
    qreal circleTrim() const { return progress(Step::CircleTrim); }
    qreal checkmarkTrim() const { return progress(Step::CheckmarkTrim); }
    qreal glowOpacity() const { return 0.3 + 0.7 * progress(Step::GreenGlow); }
    qreal shimmerPhase() const { return progress(Step::Shimmer); }
    bool isAnimating() const;

    // Where the buttons sit, at rest.
    QRectF getStartedButtonRect() const;
    QRectF startUsingButtonRect() const;

    // The light band over a capsule of width `width`, from its leading edge: left and right.
    static std::pair<qreal, qreal> shimmerBand(qreal width, qreal phase);

    void getStarted();
    void startUsing();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct WelcomeLayout;
    struct ConfirmationLayout;
    WelcomeLayout welcomeLayout() const;
    ConfirmationLayout confirmationLayout() const;

    QParallelAnimationGroup *makeEntrance(const QList<Timing> &timings);
    void stopAnimations();
    void setProgress(Step step, qreal value);
    // The button that a click or Return would press now, if any.
    enum class Button { None, GetStarted, StartUsing };
    Button activeButton() const;
    void announceButton();
    Button buttonAt(const QPointF &position) const;

    void paintWelcome(QPainter &painter) const;
    void paintConfirmation(QPainter &painter) const;
    void paintButton(QPainter &painter, const QRectF &capsule, const QString &text, int textPx, int arrowPx,
        int spacing, qreal shadowOpacity, qreal shadowRadius, qreal shadowOffset, qreal shimmer) const;

    SettingsStore &m_store;
    std::function<void()> m_onComplete;
    int m_currentScreen = 0;
    std::array<bool, stepCount> m_fired {};
    std::array<qreal, stepCount> m_progress {};
    bool m_entranceStarted = false;
    QParallelAnimationGroup *m_welcome = nullptr;
    QParallelAnimationGroup *m_confirmation = nullptr;
    Button m_pressed = Button::None;
};
