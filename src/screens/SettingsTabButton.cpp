// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/SettingsTabButton.h"

#include "screens/Symbols.h"
#include "screens/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace {
// Points, as laid out in the tab bar: the symbol's frame, the gap and the padding of the label.
constexpr int symbolFrame = 22;
constexpr int symbolSize = 18;
constexpr int gap = 2;
constexpr int padding = 6;
constexpr int labelPixelSize = 10;
constexpr qreal cornerRadius = 6;

QFont labelFont(QFont font)
{
    font.setPixelSize(labelPixelSize);
    return font;
}
} // namespace

SettingsTabButton::SettingsTabButton(const QString &label, const QString &symbol, QWidget *parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setText(label);
    setCheckable(true);
    setAutoExclusive(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(label);
}

QSize SettingsTabButton::sizeHint() const
{
    const QFontMetrics metrics(labelFont(font()));
    return { metrics.horizontalAdvance(text()) + 2 * padding,
        padding + symbolFrame + gap + metrics.height() + padding };
}

QSize SettingsTabButton::minimumSizeHint() const
{
    return sizeHint();
}

void SettingsTabButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool selected = isChecked();
    if (selected) {
        QPainterPath plate;
        plate.addRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
        painter.fillPath(plate, Theme::accent(palette()));
    } else if (underMouse()) {
        QPainterPath plate;
        plate.addRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
        QColor hover = palette().color(QPalette::WindowText);
        hover.setAlphaF(0.06);
        painter.fillPath(plate, hover);
    }
    const QColor ink = selected ? Theme::onAccent(palette()) : Theme::secondaryText(palette());

    const QRectF symbolRect(
        (width() - symbolSize) / 2.0, padding + (symbolFrame - symbolSize) / 2.0, symbolSize, symbolSize);
    Symbols::paint(painter, symbolRect, m_symbol, ink);

    painter.setFont(labelFont(font()));
    painter.setPen(ink);
    const QRect labelRect(0, padding + symbolFrame + gap, width(), QFontMetrics(painter.font()).height());
    painter.drawText(labelRect, Qt::AlignHCenter | Qt::AlignTop, text());

    // The ring only after keyboard navigation, so the tab focused at opening does not look
    // selected as well.
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        QPen focus(Theme::accent(palette()));
        focus.setWidthF(1.5);
        painter.setPen(selected ? QPen(Theme::onAccent(palette())) : focus);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
}
