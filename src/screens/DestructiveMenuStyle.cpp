// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/DestructiveMenuStyle.h"

#include "screens/Theme.h"

#include <QAction>
#include <QStyleOptionMenuItem>

DestructiveMenuStyle::DestructiveMenuStyle(QAction *destructive)
    : m_destructive(destructive)
{
}

void DestructiveMenuStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    // The style option names no action: the item is known by its text.
    if (element != CE_MenuItem || !item || !m_destructive || item->text != m_destructive->text()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem red(*item);
    const QColor color = Theme::red(item->palette);
    // Only the resting text: a highlighted item keeps the highlight's own text colour.
    for (const QPalette::ColorRole role : { QPalette::Text, QPalette::WindowText, QPalette::ButtonText })
        red.palette.setColor(role, color);
    QProxyStyle::drawControl(element, &red, painter, widget);
}
