// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/FormatLine.h"

#include "screens/ElidedLabel.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"

#include <QPainter>
#include <QVBoxLayout>
#include <QVariantAnimation>

namespace {

constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 6;
constexpr int spacing = 6;
constexpr int markSize = 10;
constexpr int valuePixelSize = 13;

} // namespace

FormatLine::FormatLine(ColorFormat format, const QString &value, QWidget *parent)
    : PaintedButton(parent)
    , m_format(format)
    , m_value(value)
{
    setText(formatLabel(format));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *texts = new QVBoxLayout(this);
    texts->setContentsMargins(
        horizontalPadding, verticalPadding, horizontalPadding + markSize + spacing, verticalPadding);
    texts->setSpacing(1);
    auto *label = new ElidedLabel(formatLabel(format), Theme::font(11), &Theme::secondaryText, this);
    label->setObjectName(QStringLiteral("formatLabel"));
    texts->addWidget(label);
    m_valueLabel = new ElidedLabel(value, Theme::monospacedFont(valuePixelSize), &Theme::text, this);
    m_valueLabel->setObjectName(QStringLiteral("valueLabel"));
    // Code initialisers are wider than the popup: they go on over a second line, so every
    // component stays readable (cut in the middle, one of them would be hidden).
    m_valueLabel->setWrapping(true);
    // The line's tooltip holds the whole text; the label's own would only repeat it.
    m_valueLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    texts->addWidget(m_valueLabel);

    // Read as shown: the format, then its text; what a press does is the description.
    setAccessibleName(formatLabel(format) + QStringLiteral(", ") + value);
    //: The verb: what pressing the line does, copy its colour text
    setAccessibleDescription(tr("Copy"));
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

QString FormatLine::shownValue() const
{
    return m_valueLabel->shownText();
}

void FormatLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette pal = palette();
    if (isHovered() || isDown() || showsFocusRing()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::withAlpha(Theme::text(pal), isDown() ? 0.1 : 0.06));
        painter.drawRect(rect());
    }
    if (showsFocusRing()) {
        painter.setPen(QPen(pal.color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }

    const int markX = width() - horizontalPadding - markSize;
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
