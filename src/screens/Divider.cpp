// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Divider.h"

#include "screens/Theme.h"

#include <QPainter>

Divider::Divider(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::withAlpha(Theme::text(palette()), 0.12));
}
