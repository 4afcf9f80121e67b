#include "screens/FormatLine.h"

#include "screens/Symbols.h"
#include "screens/Theme.h"

#include <QPainter>
#include <QVariantAnimation>

namespace {

constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 8;
constexpr int labelColumn = 100;
constexpr int spacing = 6;
constexpr int markSize = 10;

} // namespace

FormatLine::FormatLine(ColorFormat format, const QString &value, QWidget *parent)
    : PaintedButton(parent)
    , m_format(format)
    , m_value(value)
{
    setText(rawValue(format));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Copy %1").arg(rawValue(format)));
    setAccessibleDescription(value);
    setToolTip(value);
}

QString FormatLine::markSymbol() const
{
    return m_isCopied ? QStringLiteral("checkmark") : QStringLiteral("doc.on.doc");
}

void FormatLine::setCopied(bool copied, int milliseconds, QEasingCurve::Type easing)
{
    if (copied == m_isCopied)
        return;
    m_isCopied = copied;
    if (m_animation)
        m_animation->stop();
    const qreal target = copied ? 1.0 : 0.0;
    if (milliseconds <= 0) {
        m_markProgress = target;
        update();
        return;
    }
    auto *animation = new QVariantAnimation(this);
    animation->setStartValue(m_markProgress);
    animation->setEndValue(target);
    animation->setDuration(milliseconds);
    animation->setEasingCurve(easing);
    connect(animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_markProgress = value.toReal();
        update();
    });
    m_animation = animation;
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

QSize FormatLine::sizeHint() const
{
    const QFontMetrics valueMetrics(Theme::monospacedFont(13));
    return {horizontalPadding * 2 + labelColumn + spacing + valueMetrics.horizontalAdvance(m_value) + spacing
                + markSize,
            verticalPadding * 2 + qMax(valueMetrics.height(), QFontMetrics(Theme::font(11)).height())};
}

QSize FormatLine::minimumSizeHint() const
{
    return {horizontalPadding * 2 + labelColumn + spacing * 2 + markSize + 40, sizeHint().height()};
}

void FormatLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette pal = palette();
    if (isHovered() || isDown() || (showsFocusRing())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::withAlpha(Theme::text(pal), isDown() ? 0.1 : 0.06));
        painter.drawRect(rect());
    }
    if (showsFocusRing()) {
        painter.setPen(QPen(pal.color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }

    const QRect inner = rect().adjusted(horizontalPadding, verticalPadding, -horizontalPadding, -verticalPadding);
    painter.setFont(Theme::font(11));
    painter.setPen(Theme::secondaryText(pal));
    painter.drawText(QRect(inner.x(), inner.y(), labelColumn, inner.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, labelColumn));

    const int markX = inner.right() + 1 - markSize;
    const int valueX = inner.x() + labelColumn + spacing;
    const int valueWidth = markX - spacing - valueX;
    painter.setFont(Theme::monospacedFont(13));
    painter.setPen(Theme::text(pal));
    painter.drawText(QRect(valueX, inner.y(), valueWidth, inner.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(m_value, Qt::ElideRight, valueWidth));

    const QRectF markRect(markX, height() / 2.0 - markSize / 2.0, markSize, markSize);
    if (m_markProgress < 1.0) {
        painter.setOpacity(1.0 - m_markProgress);
        Symbols::paint(painter, markRect, QStringLiteral("doc.on.doc"), Theme::secondaryText(pal));
    }
    if (m_markProgress > 0.0) {
        painter.setOpacity(m_markProgress);
        Symbols::paint(painter, markRect, QStringLiteral("checkmark"), Theme::green(pal));
    }
}
