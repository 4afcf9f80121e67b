#include "screens/OnboardingView.h"

#include "screens/Theme.h"

#include "screens/AnimationCurves.h"
#include "screens/OnboardingCheckmarkShape.h"
#include "screens/Symbols.h"
#include "screens/TrimmedPath.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QParallelAnimationGroup>
#include <QRadialGradient>
#include <QSequentialAnimationGroup>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using namespace Theme::Welcome;
using Theme::withAlpha;

constexpr qreal bulletInset = 60;
constexpr qreal bulletSymbolFrame = 24;
constexpr qreal rowSpacing = 14;
// How far the welcome icon's glow reaches beyond its 120-point disc.
constexpr qreal glowBlur = 24;

QFont systemFont(int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

// An element that rises into place while fading in: `distance` points lower until shown.
void enter(QPainter &painter, qreal progress, qreal distance)
{
    painter.translate(0, distance * (1 - progress));
    painter.setOpacity(painter.opacity() * qBound(0.0, progress, 1.0));
}

// A blurred shadow of a rounded shape, built from concentric layers (a box blur's look, which
// is all a soft shadow under a button needs).
void paintShadow(QPainter &painter, const QRectF &shape, qreal cornerRadius, const QColor &color,
                 qreal opacity, qreal radius, qreal offsetY)
{
    constexpr int layers = 8;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(color, 1 - std::pow(1 - opacity, 1.0 / layers)));
    for (int i = 0; i < layers; ++i) {
        const qreal grow = radius * (qreal(i) / (layers - 1) - 0.5);
        const QRectF layer = shape.adjusted(-grow, -grow, grow, grow).translated(0, offsetY);
        const qreal r = qMax(0.0, cornerRadius + grow);
        painter.drawRoundedRect(layer, r, r);
    }
}

qreal wrappedHeight(const QFont &font, const QString &string, qreal width)
{
    return QFontMetricsF(font).boundingRect(QRectF(0, 0, width, 10000), Qt::TextWordWrap, string).height();
}

} // namespace

struct OnboardingView::WelcomeLayout {
    qreal contentHeight; // everything but the two flexible spacers
    QRectF icon;     // the glow's 120-point circle
    QRectF title;
    std::array<QRectF, 3> bullets; // each line's row
    QRectF button;
};

struct OnboardingView::ConfirmationLayout {
    qreal contentHeight; // everything but the two flexible spacers
    QPointF checkCentre;
    QRectF headline;
    QRectF subtext;
    QRectF card;
    QRectF button;
};

QList<OnboardingView::Timing> OnboardingView::welcomeEntrance()
{
    using namespace AnimationCurves;
    return {
        {Step::Appeared, 0, easeOut(), 300, false},
        {Step::IconLanded, 200, iconSpring(), iconSpringMilliseconds(), false},
        {Step::TitleVisible, 500, easeOut(), 400, false},
        {Step::Bullet1Visible, 700, easeOut(), 350, false},
        {Step::Bullet2Visible, 850, easeOut(), 350, false},
        {Step::Bullet3Visible, 1000, easeOut(), 350, false},
        {Step::ButtonVisible, 1200, easeOut(), 300, false},
        // 2 seconds each way.
        {Step::GlowPulse, 1300, easeInOutThereAndBack(), 4000, true},
    };
}

QList<OnboardingView::Timing> OnboardingView::confirmationEntrance()
{
    using namespace AnimationCurves;
    return {
        {Step::ScreenChange, 0, easeInOut(), 400, false},
        {Step::CircleTrim, 500, easeOut(), 400, false},
        {Step::CheckmarkTrim, 900, easeOut(), 300, false},
        // 1.2 seconds each way.
        {Step::GreenGlow, 1200, easeInOutThereAndBack(), 2400, true},
        {Step::HeadlineVisible, 1300, easeOut(), 400, false},
        {Step::SubtextVisible, 1500, easeOut(), 400, false},
        {Step::PreviewVisible, 1700, easeOut(), 400, false},
        {Step::Button2Visible, 2100, easeInOut(), 300, false},
        // Starts again from the leading side on each sweep.
        {Step::Shimmer, 2300, QEasingCurve(QEasingCurve::Linear), 2000, true},
    };
}

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
    return {left, left + 0.4 * width};
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
                    }
                });
        group->addAnimation(sequence);
    }
    return group;
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
    for (QParallelAnimationGroup *group : {m_welcome, m_confirmation}) {
        if (group && group->state() == QAbstractAnimation::Paused)
            group->resume();
    }
}

void OnboardingView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous()) {
        for (QParallelAnimationGroup *group : {m_welcome, m_confirmation}) {
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
    const bool press = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space;
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

OnboardingView::WelcomeLayout OnboardingView::welcomeLayout() const
{
    const qreal w = width();
    const qreal titleHeight = QFontMetricsF(systemFont(24, QFont::Bold)).height();
    const QFont bulletFont = systemFont(14);
    const qreal textWidth = w - 2 * bulletInset - bulletSymbolFrame - rowSpacing;
    const qreal symbolHeight = QFontMetricsF(systemFont(16, QFont::Medium)).height();
    const QStringList lines = {
        tr("Pick any color from anywhere on your screen with one click."),
        tr("The color value is copied to your clipboard instantly in your preferred format."),
        tr("Pin your favorite colors and build a palette you can export anytime."),
    };
    std::array<qreal, 3> lineHeights{};
    qreal bulletsHeight = 2 * rowSpacing;
    for (std::size_t i = 0; i < 3; ++i) {
        lineHeights[i] = qMax(symbolHeight, wrappedHeight(bulletFont, lines[int(i)], textWidth));
        bulletsHeight += lineHeights[i];
    }
    const QFont buttonFont = systemFont(15, QFont::DemiBold);
    const QFontMetricsF buttonMetrics(buttonFont);
    const qreal buttonHeight = 12 + buttonMetrics.height() + 12;
    const qreal buttonWidth = 32 + buttonMetrics.horizontalAdvance(tr("Get Started")) + 6 + 13 + 32;

    const qreal fixed = 120 + 20 + titleHeight + 28 + bulletsHeight + buttonHeight + 48;
    const qreal spacer = qMax(0.0, (height() - fixed) / 2);

    WelcomeLayout layout;
    layout.contentHeight = fixed;
    qreal y = spacer;
    layout.icon = QRectF(w / 2 - 60, y, 120, 120);
    y += 120 + 20;
    layout.title = QRectF(0, y, w, titleHeight);
    y += titleHeight + 28;
    for (std::size_t i = 0; i < 3; ++i) {
        layout.bullets[i] = QRectF(bulletInset, y, w - 2 * bulletInset, lineHeights[i]);
        y += lineHeights[i] + rowSpacing;
    }
    layout.button = QRectF(w / 2 - buttonWidth / 2, height() - 48 - buttonHeight, buttonWidth, buttonHeight);
    return layout;
}

OnboardingView::ConfirmationLayout OnboardingView::confirmationLayout() const
{
    const qreal w = width();
    const qreal headlineHeight = QFontMetricsF(systemFont(24, QFont::Bold)).height();
    const qreal subtextHeight = QFontMetricsF(systemFont(15)).height();
    const QFontMetricsF cardMetrics(systemFont(13, QFont::Medium));
    const qreal cardContent
        = std::max({24.0, cardMetrics.height(), QFontMetricsF(systemFont(16, QFont::Medium)).height()});
    const qreal cardWidth = 24 + 16 + 8 + cardMetrics.horizontalAdvance(tr("Pick Color")) + 20 + 1 + 20 + 16 + 8
        + cardMetrics.horizontalAdvance(tr("Last: #FF6B35")) + 24;
    const qreal cardHeight = 14 + cardContent + 14;
    const QFontMetricsF buttonMetrics(systemFont(16, QFont::DemiBold));
    const qreal buttonHeight = 14 + buttonMetrics.height() + 14;
    const qreal buttonWidth = 36 + buttonMetrics.horizontalAdvance(tr("Start Using vantle")) + 8 + 14 + 36;

    const qreal fixed = 100 + 24 + headlineHeight + 8 + subtextHeight + 24 + cardHeight + buttonHeight + 48;
    const qreal spacer = qMax(0.0, (height() - fixed) / 2);

    ConfirmationLayout layout;
    layout.contentHeight = fixed;
    qreal y = spacer;
    layout.checkCentre = QPointF(w / 2, y + 50);
    y += 100 + 24;
    layout.headline = QRectF(0, y, w, headlineHeight);
    y += headlineHeight + 8;
    layout.subtext = QRectF(0, y, w, subtextHeight);
    y += subtextHeight + 24;
    layout.card = QRectF(w / 2 - cardWidth / 2, y, cardWidth, cardHeight);
    layout.button = QRectF(w / 2 - buttonWidth / 2, height() - 48 - buttonHeight, buttonWidth, buttonHeight);
    return layout;
}

QRectF OnboardingView::getStartedButtonRect() const
{
    return welcomeLayout().button;
}

QRectF OnboardingView::startUsingButtonRect() const
{
    return confirmationLayout().button;
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

void OnboardingView::paintWelcome(QPainter &painter) const
{
    const WelcomeLayout layout = welcomeLayout();
    const qreal pulse = progress(Step::GlowPulse);

    // The icon drops 30 points into place on a spring; the glow breathes once it has landed.
    const qreal landed = progress(Step::IconLanded);
    painter.save();
    painter.translate(0, -30 * (1 - landed));
    painter.setOpacity(painter.opacity() * qBound(0.0, landed, 1.0));
    const QPointF centre = layout.icon.center();
    const qreal glow = 0.08 + (0.25 - 0.08) * pulse;
    // A 120-point disc blurred by 24 points: solid to 36, fading out to 84.
    constexpr qreal blur = glowBlur;
    QRadialGradient halo(centre, 60 + blur);
    halo.setColorAt(0, withAlpha(accent, glow));
    halo.setColorAt((60 - blur) / (60 + blur), withAlpha(accent, glow));
    halo.setColorAt(0.5 + 0.5 * (60 - blur) / (60 + blur), withAlpha(accent, glow / 2));
    halo.setColorAt(1, withAlpha(accent, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(centre, 60 + blur, 60 + blur);
    Symbols::paint(painter, QRectF(centre.x() - 24, centre.y() - 24, 48, 48), QStringLiteral("eyedropper"), accent);
    painter.restore();

    painter.save();
    enter(painter, progress(Step::TitleVisible), 10);
    painter.setFont(systemFont(24, QFont::Bold));
    painter.setPen(text);
    painter.drawText(layout.title, Qt::AlignCenter, tr("Welcome to vantle"));
    painter.restore();

    const struct {
        const char *symbol;
        QString line;
        Step step;
    } bullets[] = {
        {"eyedropper.halffull", tr("Pick any color from anywhere on your screen with one click."),
         Step::Bullet1Visible},
        {"doc.on.clipboard", tr("The color value is copied to your clipboard instantly in your preferred format."),
         Step::Bullet2Visible},
        {"pin.fill", tr("Pin your favorite colors and build a palette you can export anytime."),
         Step::Bullet3Visible},
    };
    const qreal symbolHeight = QFontMetricsF(systemFont(16, QFont::Medium)).height();
    for (std::size_t i = 0; i < 3; ++i) {
        const QRectF row = layout.bullets[i];
        painter.save();
        enter(painter, progress(bullets[i].step), 8);
        Symbols::paint(painter, QRectF(row.left(), row.top() + (symbolHeight - 16) / 2, bulletSymbolFrame, 16),
                       QLatin1String(bullets[i].symbol), accent);
        painter.setFont(systemFont(14));
        painter.setPen(mutedText);
        painter.drawText(row.adjusted(bulletSymbolFrame + rowSpacing, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, bullets[i].line);
        painter.restore();
    }

    const qreal shown = progress(Step::ButtonVisible);
    painter.save();
    const qreal scale = 0.9 + 0.1 * shown + 0.02 * pulse;
    painter.translate(layout.button.center());
    painter.scale(scale, scale);
    painter.translate(-layout.button.center());
    painter.setOpacity(painter.opacity() * qBound(0.0, shown, 1.0));
    paintButton(painter, layout.button, tr("Get Started"), 15, 13, 6, 0.4, 12, 4, -1);
    painter.restore();
}

void OnboardingView::paintConfirmation(QPainter &painter) const
{
    const ConfirmationLayout layout = confirmationLayout();
    const QPointF centre = layout.checkCentre;

    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(success, glowOpacity() * 0.3));
    painter.drawEllipse(centre, 50, 50);

    const QRectF mark(centre.x() - 36, centre.y() - 36, 72, 72);
    // The ring starts drawing at the top and runs clockwise.
    QPainterPath ring;
    ring.arcMoveTo(mark, 90);
    ring.arcTo(mark, 90, -360);
    QPen ringPen(success, 7, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
    ringPen.setMiterLimit(10);
    painter.strokePath(trimmedPath(ring, circleTrim()), ringPen);
    painter.strokePath(trimmedPath(OnboardingCheckmarkShape::path(mark), checkmarkTrim()),
                       QPen(success, 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));

    painter.save();
    enter(painter, progress(Step::HeadlineVisible), 10);
    painter.setFont(systemFont(24, QFont::Bold));
    painter.setPen(text);
    painter.drawText(layout.headline, Qt::AlignCenter, tr("You're all set."));
    painter.restore();

    painter.save();
    enter(painter, progress(Step::SubtextVisible), 8);
    painter.setFont(systemFont(15));
    painter.setPen(mutedText);
    painter.drawText(
        layout.subtext, Qt::AlignCenter, tr("Look for the eyedropper icon in your system tray."));
    painter.restore();

    // A small picture of the menu-bar popover's controls.
    painter.save();
    enter(painter, progress(Step::PreviewVisible), 8);
    const QRectF cardRect = layout.card;
    painter.setPen(QPen(border, 1));
    painter.setBrush(card);
    painter.drawRoundedRect(cardRect.adjusted(0.5, 0.5, -0.5, -0.5), 12, 12);
    const QFont cardFont = systemFont(13, QFont::Medium);
    const QFontMetricsF cardMetrics(cardFont);
    painter.setFont(cardFont);
    const qreal midY = cardRect.center().y();
    qreal x = cardRect.left() + 24;
    // Drawn in the desktop's primary text colour, like the popover it stands for.
    Symbols::paint(painter, QRectF(x, midY - 8, 16, 16), QStringLiteral("eyedropper"),
                   QApplication::palette().color(QPalette::WindowText));
    x += 16 + 8;
    const QString pick = tr("Pick Color");
    painter.setPen(text);
    painter.drawText(QRectF(x, cardRect.top(), cardMetrics.horizontalAdvance(pick) + 1, cardRect.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, pick);
    x += cardMetrics.horizontalAdvance(pick) + 20;
    painter.setPen(Qt::NoPen);
    painter.setBrush(border);
    painter.drawRoundedRect(QRectF(x, midY - 12, 1, 24), 1, 1);
    x += 1 + 20;
    Symbols::paint(painter, QRectF(x, midY - 8, 16, 16), QStringLiteral("circle.fill"), accent);
    x += 16 + 8;
    const QString last = tr("Last: #FF6B35");
    painter.setPen(text);
    painter.drawText(QRectF(x, cardRect.top(), cardMetrics.horizontalAdvance(last) + 1, cardRect.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, last);
    painter.restore();

    const qreal shown = progress(Step::Button2Visible);
    painter.save();
    const qreal scale = 0.88 + 0.12 * shown;
    painter.translate(layout.button.center());
    painter.scale(scale, scale);
    painter.translate(-layout.button.center());
    painter.setOpacity(painter.opacity() * qBound(0.0, shown, 1.0));
    paintButton(painter, layout.button, tr("Start Using vantle"), 16, 14, 8, 0.45, 16, 6, shimmerPhase());
    painter.restore();
}

void OnboardingView::paintButton(QPainter &painter, const QRectF &capsule, const QString &label, int textPx,
                                 int arrowPx, int spacing, qreal shadowOpacity, qreal shadowRadius,
                                 qreal shadowOffset, qreal shimmer) const
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
    painter.drawText(QRectF(x, capsule.top(), textWidth + 1, capsule.height()), Qt::AlignLeft | Qt::AlignVCenter,
                     label);
    Symbols::paint(painter, QRectF(x + textWidth + spacing, capsule.center().y() - arrowPx / 2.0, arrowPx, arrowPx),
                   QStringLiteral("arrow.right"), Qt::white);
}
