// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorRowView.h"

#include "screens/ColorSwatch.h"
#include "screens/DestructiveMenuStyle.h"
#include "screens/ElidedLabel.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

ColorRowView::ColorRowView(const PickedColor &color, ColorFormat format, std::function<void()> onCopy,
    std::function<void()> onPin, std::function<void(const QString &)> onRename,
    std::function<void()> onDelete, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
    , m_format(format)
    , m_onCopy(std::move(onCopy))
    , m_onPin(std::move(onPin))
    , m_onRename(std::move(onRename))
    , m_onDelete(std::move(onDelete))
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true); // see mouseMoveEvent
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 12, 4);
    row->setSpacing(8);
    row->addWidget(new ColorSwatch(color.red, color.green, color.blue, 24, this), 0, Qt::AlignVCenter);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->setContentsMargins(0, 0, 0, 0);
    if (color.hasName()) {
        auto *name = new ElidedLabel(*color.name, Theme::font(11, QFont::Medium), &Theme::text, this);
        name->setObjectName(QStringLiteral("nameLabel"));
        texts->addWidget(name);
    }
    auto *value = new ElidedLabel(color.formatted(format), Theme::monospacedFont(13), &Theme::text, this);
    value->setObjectName(QStringLiteral("valueLabel"));
    value->setElideMode(Qt::ElideMiddle); // a code initialiser keeps its opening and its end
    texts->addWidget(value);
    row->addLayout(texts, 1);

    if (color.isPinned) {
        row->addWidget(
            new SymbolLabel(QStringLiteral("pin.fill"), 9, &Theme::secondaryText, this), 0, Qt::AlignVCenter);
    }

    // Moves over the swatch and texts reach the row only when they track the pointer too: a
    // widget that does not drops them.
    for (QWidget *child : findChildren<QWidget *>())
        child->setMouseTracking(true);

    QString accessible = color.formatted(format);
    if (color.hasName())
        accessible = *color.name + QStringLiteral(", ") + accessible;
    if (color.isPinned)
        //: Spoken state of a colour kept in the palette
        accessible += QStringLiteral(", ") + tr("pinned");
    setAccessibleName(accessible);
}

QString ColorRowView::valueText() const
{
    return m_color.formatted(m_format);
}

QMenu *ColorRowView::showContextMenu(const QPoint &globalPosition)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Never shown on screen: what a screen reader calls the menu.
    menu->setWindowTitle(accessibleName());
    // Each action carries its own copy of the callback: the list may rebuild (and delete this
    // row) as a result of the action.
    connect(menu->addAction(tr("Copy")), &QAction::triggered, menu, [onCopy = m_onCopy] {
        if (onCopy)
            onCopy();
    });
    //: The verbs of the menu: keep the colour in the palette, or take it out (Unpin)
    connect(menu->addAction(m_color.isPinned ? tr("Unpin") : tr("Pin")), &QAction::triggered, menu,
        [onPin = m_onPin] {
            if (onPin)
                onPin();
        });
    connect(menu->addAction(tr("Rename…")), &QAction::triggered, this, &ColorRowView::renameRequested);
    menu->addSeparator();
    QAction *remove = menu->addAction(tr("Delete"));
    remove->setObjectName(QStringLiteral("deleteAction"));
    auto *style = new DestructiveMenuStyle(remove);
    style->setParent(menu);
    menu->setStyle(style);
    connect(remove, &QAction::triggered, menu, [onDelete = m_onDelete] {
        if (onDelete)
            onDelete();
    });
    // While the menu is open its selected entry is the one highlight; the row keeps its fill.
    m_menu = menu;
    connect(menu, &QMenu::aboutToHide, this, qOverload<>(&QWidget::update));
    update();
    // Not exec(): a nested event loop would run the whole program inside this call.
    menu->popup(globalPosition);
    return menu;
}

void ColorRowView::paintEvent(QPaintEvent *)
{
    if (!isHovered() && !showsFocusRing() && !m_isPressed)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect());
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::withAlpha(Theme::text(palette()), m_isPressed ? 0.1 : 0.06));
    painter.drawRoundedRect(box, 8, 8);
    if (showsFocusRing() && !(m_menu && m_menu->isVisible())) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(0.75, 0.75, -0.75, -0.75), 8, 8);
    }
}

void ColorRowView::enterEvent(QEnterEvent *event)
{
    // The focus follows the pointer once it moves (mouseMoveEvent): the popup opening under a
    // resting pointer keeps its focus where it starts.
    m_isHovered = true;
    update();
    QWidget::enterEvent(event);
}

void ColorRowView::mouseMoveEvent(QMouseEvent *event)
{
    // The pointer moving over a row takes the highlight, also back from the keyboard.
    if (!hasFocus()) {
        setFocus(Qt::MouseFocusReason);
        update();
    }
    QWidget::mouseMoveEvent(event);
}

void ColorRowView::leaveEvent(QEvent *event)
{
    m_isHovered = false;
    m_isPressed = false;
    update();
    QWidget::leaveEvent(event);
}

void ColorRowView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_isPressed = true;
    update();
    event->accept();
}

void ColorRowView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_isPressed) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_isPressed = false;
    update();
    event->accept();
    if (rect().contains(event->position().toPoint()))
        Q_EMIT activated(); // may rebuild the list: nothing touches the row after this
}

void ColorRowView::keyPressEvent(QKeyEvent *event)
{
    // Shift+F10 is the menu key of keyboards without one; the menu key itself arrives as a
    // context menu event.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        event->accept();
        showMenuFromKeyboard();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        event->accept();
        Q_EMIT activated();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColorRowView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse)
        showContextMenu(event->globalPos());
    else
        showMenuFromKeyboard();
    event->accept();
}

void ColorRowView::showMenuFromKeyboard()
{
    // Beside the swatch, with its first entry selected, so the keyboard goes on from there.
    QMenu *menu = showContextMenu(mapToGlobal(QPoint(24, height() / 2)));
    menu->setActiveAction(menu->actions().constFirst());
}

void ColorRowView::focusInEvent(QFocusEvent *event)
{
    // Arrow keys move focus with the tab reason (the list's moveRowFocus).
    m_focusFromKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    update();
    QWidget::focusInEvent(event);
}

void ColorRowView::focusOutEvent(QFocusEvent *event)
{
    update();
    QWidget::focusOutEvent(event);
}
