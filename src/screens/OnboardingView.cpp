// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/OnboardingView.h"

#include "screens/OnboardingPainting.h"
#include "screens/Theme.h"

#include "screens/Symbols.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QParallelAnimationGroup>
#include <QSequentialAnimationGroup>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace OnboardingPainting;
using namespace Theme::Welcome;

OnboardingView::OnboardingView(SettingsStore &store, std::function<void()> onComplete, QWidget *parent)
    : QWidget(parent)
    , m_store(store)
    , m_onComplete(std::move(onComplete))
{
    setFixedSize(defaultWidth, defaultHeight);
    // DejaVu and Noto wrap the feature lines more than the design's font does. Rather than
    // squeeze the described spacing, the window grows until each screen's flexible spacers keep
    // the glow's reach: above the icon's glow, and between the content and the button.
    const qreal content = std::max(welcomeLayout().contentHeight, confirmationLayout().contentHeight);
    setFixedHeight(std::max(defaultHeight, int(std::ceil(content + 2 * glowBlur))));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_TranslucentBackground);
}

OnboardingView::~OnboardingView() = default;

bool OnboardingView::isAnimating() const
{
    return (m_welcome && m_welcome->state() == QAbstractAnimation::Running)
        || (m_confirmation && m_confirmation->state() == QAbstractAnimation::Running);
}

std::pair<qreal, qreal> OnboardingView::shimmerBand(qreal width, qreal phase)
{
    const qreal left = (width + 0.4 * width) * phase - 0.2 * width;
    return { left, left + 0.4 * width };
}

QParallelAnimationGroup *OnboardingView::makeEntrance(const QList<Timing> &timings)
{
    auto *group = new QParallelAnimationGroup(this);
    for (const Timing &timing : timings) {
        auto *sequence = new QSequentialAnimationGroup(group);
        // The wait is an ordinary animation rather than a QPauseAnimation: while only pauses
        // run, Qt leaves the animation clock for a wall-clock timer, and the choreography must
        // follow one clock (the one a test drives, too).
        if (timing.delayMs > 0) {
            auto *wait = new QVariantAnimation(sequence);
            wait->setStartValue(0.0);
            wait->setEndValue(0.0);
            wait->setDuration(timing.delayMs);
            sequence->addAnimation(wait);
        }
        auto *animation = new QVariantAnimation(sequence);
        animation->setStartValue(0.0);
        animation->setEndValue(1.0);
        animation->setDuration(timing.durationMs);
        animation->setEasingCurve(timing.curve);
        animation->setLoopCount(timing.repeats ? -1 : 1);
        sequence->addAnimation(animation);
        const Step step = timing.step;
        connect(animation, &QVariantAnimation::valueChanged, this,
            [this, step](const QVariant &value) { setProgress(step, value.toReal()); });
        connect(animation, &QAbstractAnimation::stateChanged, this,
            [this, step](QAbstractAnimation::State state) {
                if (state == QAbstractAnimation::Running && !hasFired(step)) {
                    m_fired[std::size_t(step)] = true;
                    update();
                    if (step == Step::ButtonVisible || step == Step::Button2Visible)
                        announceButton();
                }
            });
        group->addAnimation(sequence);
    }
    return group;
}

// A screen reader learns that the screen's button, which takes no press before it enters, is
// there now.
void OnboardingView::announceButton()
{
    QAccessibleInterface *view
        = QAccessible::isActive() ? QAccessible::queryAccessibleInterface(this) : nullptr;
    if (QAccessibleInterface *button = view ? view->child(view->childCount() - 1) : nullptr) {
        QAccessible::State changed;
        changed.invisible = true;
        QAccessibleStateChangeEvent event(button, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void OnboardingView::setProgress(Step step, qreal value)
{
    m_progress[std::size_t(step)] = value;
    update();
}

void OnboardingView::stopAnimations()
{
    if (m_welcome)
        m_welcome->stop();
    if (m_confirmation)
        m_confirmation->stop();
}

void OnboardingView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_entranceStarted) {
        m_entranceStarted = true;
        m_welcome = makeEntrance(welcomeEntrance());
        m_welcome->start();
        return;
    }
    // Back from being minimised: carry on where the choreography paused.
    for (QParallelAnimationGroup *group : { m_welcome, m_confirmation }) {
        if (group && group->state() == QAbstractAnimation::Paused)
            group->resume();
    }
}

void OnboardingView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous()) {
        for (QParallelAnimationGroup *group : { m_welcome, m_confirmation }) {
            if (group && group->state() == QAbstractAnimation::Running)
                group->pause();
        }
        return;
    }
    // Closed: nothing may keep waking the program up.
    stopAnimations();
}

void OnboardingView::getStarted()
{
    if (m_currentScreen != 0)
        return;
    m_store.setBool(PreferenceKeys::onboardingShown, true);
    m_currentScreen = 1;
    // A screen reader reads the new screen's texts and button in place of the old ones.
    QAccessibleEvent reorder(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&reorder);
    if (hasFocus()) {
        QAccessibleEvent focus(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }
    m_confirmation = makeEntrance(confirmationEntrance());
    // The welcome screen's pulse stops once it has slid away (the screen change comes first).
    // Stopped from the event loop: stopping one animation while Qt advances the others makes
    // it skip the rest of the confirmation's steps.
    connect(m_confirmation->animationAt(0), &QAbstractAnimation::finished, this, [this] {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_welcome)
                    m_welcome->stop();
            },
            Qt::QueuedConnection);
    });
    m_confirmation->start();
    update();
}

void OnboardingView::startUsing()
{
    // The host may destroy this view inside the callback: keep our own copy and touch
    // nothing afterwards.
    const std::function<void()> onComplete = m_onComplete;
    if (onComplete)
        onComplete();
}

OnboardingView::Button OnboardingView::activeButton() const
{
    if (m_currentScreen == 0)
        return hasFired(Step::ButtonVisible) ? Button::GetStarted : Button::None;
    return hasFired(Step::Button2Visible) ? Button::StartUsing : Button::None;
}

OnboardingView::Button OnboardingView::buttonAt(const QPointF &position) const
{
    const Button active = activeButton();
    const QRectF rect = active == Button::GetStarted ? getStartedButtonRect() : startUsingButtonRect();
    if (active == Button::None || !rect.contains(position))
        return Button::None;
    return active;
}

void OnboardingView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? buttonAt(event->position()) : Button::None;
    if (m_pressed == Button::None) {
        // Not a button: the window drags by its background.
        event->ignore();
        return;
    }
    event->accept();
}

void OnboardingView::mouseReleaseEvent(QMouseEvent *event)
{
    const Button pressed = std::exchange(m_pressed, Button::None);
    if (pressed == Button::None || buttonAt(event->position()) != pressed) {
        event->ignore();
        return;
    }
    if (pressed == Button::GetStarted)
        getStarted();
    else
        startUsing();
}

void OnboardingView::mouseMoveEvent(QMouseEvent *event)
{
    setCursor(buttonAt(event->position()) == Button::None ? Qt::ArrowCursor : Qt::PointingHandCursor);
    event->ignore();
}

void OnboardingView::keyPressEvent(QKeyEvent *event)
{
    const bool press
        = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    switch (press ? activeButton() : Button::None) {
    case Button::GetStarted:
        getStarted();
        return;
    case Button::StartUsing:
        startUsing();
        return;
    case Button::None:
        QWidget::keyPressEvent(event);
    }
}

void OnboardingView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    painter.fillPath(frame, background);
    painter.setClipPath(frame);
    painter.setOpacity(progress(Step::Appeared));

    // The screens slide from the trailing edge to the leading one while cross-fading.
    const qreal change = m_currentScreen == 1 ? progress(Step::ScreenChange) : 0.0;
    if (change < 1) {
        painter.save();
        painter.translate(-change * width(), 0);
        painter.setOpacity(painter.opacity() * (1 - change));
        paintWelcome(painter);
        painter.restore();
    }
    if (m_currentScreen == 1) {
        painter.save();
        painter.translate((1 - change) * width(), 0);
        painter.setOpacity(painter.opacity() * change);
        paintConfirmation(painter);
        painter.restore();
    }
}

void OnboardingView::paintButton(QPainter &painter, const QRectF &capsule, const QString &label, int textPx,
    int arrowPx, int spacing, qreal shadowOpacity, qreal shadowRadius, qreal shadowOffset,
    qreal shimmer) const
{
    const qreal radius = capsule.height() / 2;
    paintShadow(painter, capsule, radius, accent, shadowOpacity, shadowRadius, shadowOffset);
    QPainterPath shape;
    shape.addRoundedRect(capsule, radius, radius);
    painter.fillPath(shape, accent);

    if (shimmer >= 0) {
        painter.save();
        painter.setClipPath(shape, Qt::IntersectClip);
        const auto [left, right] = shimmerBand(capsule.width(), shimmer);
        QLinearGradient band(capsule.left() + left, 0, capsule.left() + right, 0);
        band.setColorAt(0, withAlpha(Qt::white, 0));
        band.setColorAt(0.5, withAlpha(Qt::white, 0.28));
        band.setColorAt(1, withAlpha(Qt::white, 0));
        painter.fillRect(QRectF(capsule.left() + left, capsule.top(), right - left, capsule.height()), band);
        painter.restore();
    }

    const QFont font = systemFont(textPx, QFont::DemiBold);
    const qreal textWidth = QFontMetricsF(font).horizontalAdvance(label);
    const qreal rowWidth = textWidth + spacing + arrowPx;
    const qreal x = capsule.center().x() - rowWidth / 2;
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(visualRect(painter, capsule, QRectF(x, capsule.top(), textWidth + 1, capsule.height())),
        Qt::AlignLeft | Qt::AlignVCenter, label);
    Symbols::paint(painter,
        visualRect(painter, capsule,
            QRectF(x + textWidth + spacing, capsule.center().y() - arrowPx / 2.0, arrowPx, arrowPx)),
        QStringLiteral("arrow.right"), Qt::white);
}
