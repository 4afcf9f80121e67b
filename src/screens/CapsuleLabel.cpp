// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/CapsuleLabel.h"

#include <QPainter>
#include <cmath>

CapsuleLabel::CapsuleLabel(const QString &text, const QFont &font, ColorRole textColor, ColorRole fillColor,
    QMargins padding, QWidget *parent)
    : QWidget(parent)
    , m_text(text)
    , m_textColor(std::move(textColor))
    , m_fill(std::move(fillColor))
    , m_padding(padding)
{
    setFont(font);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(text);
}

void CapsuleLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize CapsuleLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    // Rounded up: the fractional advances of DejaVu and Noto would otherwise lose a pixel.
    const int width = int(std::ceil(QFontMetricsF(font()).horizontalAdvance(m_text))) + m_padding.left()
        + m_padding.right();
    const int height = metrics.height() + m_padding.top() + m_padding.bottom();
    // Never narrower than tall, so a one-digit count is a circle rather than a sliver.
    return { qMax(width, height), height };
}

void CapsuleLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect());
    const qreal radius = box.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_fill(palette()));
    painter.drawRoundedRect(box, radius, radius);
    painter.setPen(m_textColor(palette()));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, m_text);
}
