// SPDX-License-Identifier: GPL-3.0-or-later
// The first screen of the welcome window: the icon in its glow, the title, three feature lines
// and "Get Started".
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

QList<OnboardingView::Timing> OnboardingView::welcomeEntrance()
{
    using namespace AnimationCurves;
    return {
        { Step::Appeared, 0, easeOut(), 300, false },
        { Step::IconLanded, 200, iconSpring(), iconSpringMilliseconds(), false },
        { Step::TitleVisible, 500, easeOut(), 400, false },
        { Step::Bullet1Visible, 700, easeOut(), 350, false },
        { Step::Bullet2Visible, 850, easeOut(), 350, false },
        { Step::Bullet3Visible, 1000, easeOut(), 350, false },
        { Step::ButtonVisible, 1200, easeOut(), 300, false },
        // 2 seconds each way.
        { Step::GlowPulse, 1300, easeInOutThereAndBack(), 4000, true },
    };
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
    std::array<qreal, 3> lineHeights {};
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

QRectF OnboardingView::getStartedButtonRect() const
{
    return welcomeLayout().button;
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
    Symbols::paint(
        painter, QRectF(centre.x() - 24, centre.y() - 24, 48, 48), QStringLiteral("eyedropper"), accent);
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
        { "eyedropper.halffull", tr("Pick any color from anywhere on your screen with one click."),
            Step::Bullet1Visible },
        { "doc.on.clipboard",
            tr("The color value is copied to your clipboard instantly in your preferred format."),
            Step::Bullet2Visible },
        { "pin.fill", tr("Pin your favorite colors and build a palette you can export anytime."),
            Step::Bullet3Visible },
    };
    const qreal symbolHeight = QFontMetricsF(systemFont(16, QFont::Medium)).height();
    for (std::size_t i = 0; i < 3; ++i) {
        const QRectF row = layout.bullets[i];
        painter.save();
        enter(painter, progress(bullets[i].step), 8);
        Symbols::paint(painter,
            visualRect(
                painter, row, QRectF(row.left(), row.top() + (symbolHeight - 16) / 2, bulletSymbolFrame, 16)),
            QLatin1String(bullets[i].symbol), accent);
        painter.setFont(systemFont(14));
        painter.setPen(mutedText);
        painter.drawText(visualRect(painter, row, row.adjusted(bulletSymbolFrame + rowSpacing, 0, 0, 0)),
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
