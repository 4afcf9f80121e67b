// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <cmath>

namespace {

int neededWidth(const QFont &font, const QString &text)
{
    return int(std::ceil(QFontMetricsF(font).horizontalAdvance(text)));
}

// The lines of `text` wrapped to `width`, with the height they take.
struct WrappedText {
    QList<QTextLine> lines;
    qreal height = 0;
};

void layOut(QTextLayout &layout, qreal width, WrappedText &result)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // Each line starts at its own left; paintEvent places it by the alignment.
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(layout.text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, result.height));
        result.height += line.height();
        result.lines.append(line);
    }
    layout.endLayout();
}

} // namespace

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

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    updateToolTip();
    update();
}

void ElidedLabel::setSmallestPixelSize(int pixelSize)
{
    m_smallestPixelSize = pixelSize;
    updateToolTip();
    update();
}

void ElidedLabel::setWrapping(bool wrapping)
{
    m_wrapping = wrapping;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(wrapping);
    setSizePolicy(policy);
    updateGeometry();
    updateToolTip();
}

QFont ElidedLabel::shownFont() const
{
    QFont shown = font();
    if (m_wrapping)
        return shown;
    const int smallest = m_smallestPixelSize > 0 ? m_smallestPixelSize : font().pixelSize();
    for (int size = font().pixelSize(); size >= smallest && size > 0; --size) {
        shown.setPixelSize(size);
        if (neededWidth(shown, m_text) <= width())
            return shown;
    }
    return font();
}

QString ElidedLabel::shownText() const
{
    if (m_wrapping)
        return m_text;
    const QFont shown = shownFont();
    if (neededWidth(shown, m_text) <= width())
        return m_text;
    return QFontMetricsF(shown).elidedText(m_text, m_elideMode, width());
}

QSize ElidedLabel::sizeHint() const
{
    return { neededWidth(font(), m_text), QFontMetrics(font()).height() };
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    if (m_wrapping)
        return { qMin(sizeHint().width(), metrics.horizontalAdvance(QLatin1Char('M')) * 4),
            metrics.height() };
    return { qMin(sizeHint().width(), metrics.horizontalAdvance(QStringLiteral("…")) * 3), metrics.height() };
}

int ElidedLabel::heightForWidth(int width) const
{
    if (!m_wrapping)
        return QWidget::heightForWidth(width);
    // A text that needs no second line is exactly as tall as an unwrapped label: wrapping where
    // a language needs it leaves the English look alone.
    if (neededWidth(font(), m_text) <= width)
        return QFontMetrics(font()).height();
    QTextLayout layout(m_text, font());
    WrappedText wrapped;
    layOut(layout, width, wrapped);
    return qMax(QFontMetrics(font()).height(), int(std::ceil(wrapped.height)));
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_color(palette()));
    // The place follows the layout (mirrored right to left); the reading order follows the text
    // itself, by its first letter: a colour text like rgb(255, 107, 54) stays left to right
    // in an Arabic interface, its parentheses where they belong.
    const Qt::Alignment alignment
        = QStyle::visualAlignment(layoutDirection(), m_alignment) | Qt::AlignAbsolute;
    painter.setLayoutDirection(m_text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    if (!m_wrapping) {
        painter.setFont(shownFont());
        painter.drawText(rect(), int(alignment) | Qt::TextSingleLine, shownText());
        return;
    }
    QTextLayout layout(m_text, font());
    WrappedText wrapped;
    layOut(layout, width(), wrapped);
    const qreal top = (alignment & Qt::AlignVCenter) ? (height() - wrapped.height) / 2 : 0;
    for (const QTextLine &line : std::as_const(wrapped.lines)) {
        qreal left = 0;
        if (alignment & Qt::AlignRight)
            left = width() - line.naturalTextWidth();
        else if (alignment & Qt::AlignHCenter)
            left = (width() - line.naturalTextWidth()) / 2;
        line.draw(&painter, QPointF(left, top));
    }
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_wrapping) {
        // Hosts sized from size hints (the popup is) do not ask for the height at a width: ask
        // for the lines' height as a minimum once the width is known.
        const int needed = heightForWidth(width());
        if (minimumHeight() != needed)
            setMinimumHeight(needed);
    }
    updateToolTip();
}

void ElidedLabel::updateToolTip()
{
    // Clicks still reach the row or line underneath: a plain widget ignores mouse presses.
    setToolTip(shownText() == m_text ? QString() : m_text);
}
