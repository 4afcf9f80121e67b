// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QProxyStyle>

class QAction;

// The desktop's own style for one menu, but with the item of an action that destroys something
// ("Delete") written in the theme's red, as GNOME and KDE mark destructive entries. Set it on
// the menu and parent it to the menu, so it lives exactly as long.
class DestructiveMenuStyle : public QProxyStyle {
    Q_OBJECT
public:
    explicit DestructiveMenuStyle(QAction *destructive);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;

private:
    QPointer<QAction> m_destructive;
};
