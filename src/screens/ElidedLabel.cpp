#include "screens/ElidedLabel.h"

#include <QPainter>

ElidedLabel::ElidedLabel(const QString &text, const QFont &font, ColorRole color, QWidget *parent)
    : QWidget(parent)
    , m_text(text)
    , m_color(color)
{
    setFont(font);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    updateGeometry();
    updateToolTip();
    update();
}

void ElidedLabel::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    update();
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(m_text), metrics.height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    return {qMin(sizeHint().width(), metrics.horizontalAdvance(QStringLiteral("…")) * 3), metrics.height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_color(palette()));
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    painter.drawText(rect(), int(m_alignment) | Qt::TextSingleLine, shown);
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateToolTip();
}

void ElidedLabel::updateToolTip()
{
    // Clicks still reach the row or line underneath: a plain widget ignores mouse presses.
    const bool elided = fontMetrics().horizontalAdvance(m_text) > width();
    setToolTip(elided ? m_text : QString());
}
