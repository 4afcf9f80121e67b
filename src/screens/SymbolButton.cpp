// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/SymbolButton.h"

#include "screens/Symbols.h"
#include "screens/Theme.h"

#include <QPainter>
#include <QStyle>

SymbolButton::SymbolButton(const QString &text, Style style, QWidget *parent)
    : PaintedButton(parent)
    , m_style(std::move(style))
{
    setText(text);
    setFont(m_style.font);
    setCursor(Qt::PointingHandCursor);
    // Tab reaches every button; a mouse click leaves no focus ring behind.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize SymbolButton::sizeHint() const
{
    const QFontMetrics metrics(font());
    int width = 0;
    int height = 0;
    if (!m_style.symbol.isEmpty()) {
        width += m_style.symbolSize;
        height = m_style.symbolSize;
    }
    if (!text().isEmpty()) {
        if (width > 0)
            width += m_style.spacing;
        width += metrics.horizontalAdvance(text());
        height = qMax(height, metrics.height());
    }
    return { width + m_style.padding.left() + m_style.padding.right(),
        height + m_style.padding.top() + m_style.padding.bottom() };
}

QSize SymbolButton::minimumSizeHint() const
{
    return sizeHint();
}

void SymbolButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect());
    const QPalette pal = palette();

    if (m_style.fill) {
        QColor fill = m_style.fill(pal);
        if (!isEnabled())
            fill = Theme::withAlpha(fill, 0.55);
        else if (isDown())
            fill = fill.darker(112);
        else if (isHovered())
            fill = fill.lighter(108);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(box, m_style.radius, m_style.radius);
    } else if (isEnabled() && (isHovered() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::withAlpha(Theme::text(pal), isDown() ? 0.12 : 0.06));
        painter.drawRoundedRect(box, m_style.radius, m_style.radius);
    }
    QColor foreground = m_style.foreground(pal);
    if (showsFocusRing()) {
        painter.setPen(QPen(pal.color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), m_style.radius, m_style.radius);
        // On a coloured fill the highlight alone hardly shows: a second ring inside it in the
        // button's text colour does.
        if (m_style.fill) {
            painter.setPen(QPen(foreground, 1.5));
            painter.drawRoundedRect(box.adjusted(3.5, 3.5, -3.5, -3.5), qMax(0.0, m_style.radius - 2.5),
                qMax(0.0, m_style.radius - 2.5));
        }
    }

    if (!isEnabled())
        foreground = Theme::withAlpha(foreground, 0.75);
    const QFontMetrics metrics(font());
    const bool hasSymbol = !m_style.symbol.isEmpty();
    const int textWidth = text().isEmpty() ? 0 : metrics.horizontalAdvance(text());
    const int contentWidth
        = (hasSymbol ? m_style.symbolSize : 0) + (hasSymbol && textWidth ? m_style.spacing : 0) + textWidth;
    const QRect inner = rect().marginsRemoved(m_style.padding);
    int x = m_style.centred ? rect().x() + (rect().width() - contentWidth) / 2 : inner.x();
    const qreal centreY = rect().height() / 2.0;
    // Laid out left to right, then mirrored as a whole in a right-to-left interface: the symbol
    // leads the text in either direction.
    const Qt::LayoutDirection direction = layoutDirection();
    if (hasSymbol) {
        const QRect symbolRect(
            x, qRound(centreY - m_style.symbolSize / 2.0), m_style.symbolSize, m_style.symbolSize);
        Symbols::paint(
            painter, QStyle::visualRect(direction, rect(), symbolRect), m_style.symbol, foreground);
        x += m_style.symbolSize + m_style.spacing;
    }
    if (textWidth) {
        painter.setPen(foreground);
        painter.drawText(QStyle::visualRect(direction, rect(), QRect(x, 0, textWidth + 1, height())),
            Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, text());
    }
}
