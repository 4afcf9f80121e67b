// SPDX-License-Identifier: GPL-3.0-or-later
// The second screen of the welcome window: the check mark, the confirmation, the shortcut card
// and "Start Using".
#include "screens/OnboardingView.h"

#include "screens/AnimationCurves.h"
#include "screens/OnboardingCheckmarkShape.h"
#include "screens/OnboardingPainting.h"
#include "screens/Symbols.h"
#include "screens/TrimmedPath.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

using namespace OnboardingPainting;
using namespace Theme::Welcome;

QList<OnboardingView::Timing> OnboardingView::confirmationEntrance()
{
    using namespace AnimationCurves;
    return {
        { Step::ScreenChange, 0, easeInOut(), 400, false },
        { Step::CircleTrim, 500, easeOut(), 400, false },
        { Step::CheckmarkTrim, 900, easeOut(), 300, false },
        // 1.2 seconds each way.
        { Step::GreenGlow, 1200, easeInOutThereAndBack(), 2400, true },
        { Step::HeadlineVisible, 1300, easeOut(), 400, false },
        { Step::SubtextVisible, 1500, easeOut(), 400, false },
        { Step::PreviewVisible, 1700, easeOut(), 400, false },
        { Step::Button2Visible, 2100, easeInOut(), 300, false },
        // Starts again from the leading side on each sweep.
        { Step::Shimmer, 2300, QEasingCurve(QEasingCurve::Linear), 2000, true },
    };
}

namespace {

QString confirmationSubtext()
{
    return OnboardingView::tr("Look for the eyedropper icon in your system tray.");
}

} // namespace

OnboardingView::ConfirmationLayout OnboardingView::confirmationLayout() const
{
    const qreal w = width();
    const qreal headlineHeight = QFontMetricsF(systemFont(24, QFont::Bold)).height();
    // The hint wraps where a language needs more than a line.
    const qreal subtextHeight = wrappedHeight(systemFont(15), confirmationSubtext(), w - 48);
    const QFontMetricsF cardMetrics(systemFont(13, QFont::Medium));
    const qreal cardContent
        = std::max({ 24.0, cardMetrics.height(), QFontMetricsF(systemFont(16, QFont::Medium)).height() });
    const qreal cardWidth = 24 + 16 + 8 + cardMetrics.horizontalAdvance(tr("Pick Color")) + 20 + 1 + 20 + 16
        + 8 + cardMetrics.horizontalAdvance(tr("Last: #FF6B35")) + 24;
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
    layout.subtext = QRectF(24, y, w - 48, subtextHeight);
    y += subtextHeight + 24;
    layout.card = QRectF(w / 2 - cardWidth / 2, y, cardWidth, cardHeight);
    layout.button = QRectF(w / 2 - buttonWidth / 2, height() - 48 - buttonHeight, buttonWidth, buttonHeight);
    return layout;
}

QRectF OnboardingView::startUsingButtonRect() const
{
    return confirmationLayout().button;
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
    painter.drawText(layout.subtext, Qt::AlignCenter | Qt::TextWordWrap, confirmationSubtext());
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
    Symbols::paint(painter, visualRect(painter, cardRect, QRectF(x, midY - 8, 16, 16)),
        QStringLiteral("eyedropper"), QApplication::palette().color(QPalette::WindowText));
    x += 16 + 8;
    const QString pick = tr("Pick Color");
    painter.setPen(text);
    painter.drawText(
        visualRect(painter, cardRect,
            QRectF(x, cardRect.top(), cardMetrics.horizontalAdvance(pick) + 1, cardRect.height())),
        Qt::AlignLeft | Qt::AlignVCenter, pick);
    x += cardMetrics.horizontalAdvance(pick) + 20;
    painter.setPen(Qt::NoPen);
    painter.setBrush(border);
    painter.drawRoundedRect(visualRect(painter, cardRect, QRectF(x, midY - 12, 1, 24)), 1, 1);
    x += 1 + 20;
    Symbols::paint(painter, visualRect(painter, cardRect, QRectF(x, midY - 8, 16, 16)),
        QStringLiteral("circle.fill"), accent);
    x += 16 + 8;
    const QString last = tr("Last: #FF6B35");
    painter.setPen(text);
    painter.drawText(
        visualRect(painter, cardRect,
            QRectF(x, cardRect.top(), cardMetrics.horizontalAdvance(last) + 1, cardRect.height())),
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
