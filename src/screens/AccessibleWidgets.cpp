// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/AccessibleWidgets.h"

#include "screens/AccessibleSettingsWidgets.h"
#include "screens/CapsuleLabel.h"
#include "screens/ColorRowView.h"
#include "screens/ColorSwatch.h"
#include "screens/ElidedLabel.h"
#include "screens/FormatLine.h"

#include <QAbstractButton>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>
#include <QContextMenuEvent>
#include <QWindow>

namespace {

// The loupe's value while a pick runs. The loupe is no Qt window; its sampler keeps the value
// it shows in this object of the application, and says when it changes.
QObject *loupeValue()
{
    return qApp->findChild<QObject *>(QStringLiteral("loupeValue"), Qt::FindDirectChildrenOnly);
}

// The application: every top-level window, the popup ones included while they show. Qt's own
// leaves out popup windows, and the tray popup and its menus are exactly those: without this
// a screen reader finds nothing of Vantle but an empty frame.
class AccessibleApplication : public QAccessibleObject {
public:
    AccessibleApplication()
        : QAccessibleObject(qApp)
    {
    }
    QWindow *window() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return nullptr; }
    int childCount() const override { return int(windows().size()); }
    QAccessibleInterface *child(int index) const override
    {
        const QObjectList list = windows();
        return index >= 0 && index < list.size() ? QAccessible::queryAccessibleInterface(list.at(index))
                                                 : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child ? int(windows().indexOf(child->object())) : -1;
    }
    QAccessibleInterface *focusChild() const override
    {
        QWindow *window = QGuiApplication::focusWindow();
        return window ? window->accessibleRoot() : nullptr;
    }
    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? QGuiApplication::applicationDisplayName() : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Application; }
    QAccessible::State state() const override { return {}; }

private:
    static QObjectList windows()
    {
        QObjectList list;
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window->type() == Qt::Desktop || (window->type() == Qt::Popup && !window->isVisible()))
                continue;
            if (QAccessibleInterface *root = window->accessibleRoot(); root && root->object())
                list.append(root->object());
        }
        if (QObject *loupe = loupeValue(); loupe && !loupe->property("text").toString().isEmpty())
            list.append(loupe);
        return list;
    }
};

class AccessibleLoupeValue : public QAccessibleObject {
public:
    explicit AccessibleLoupeValue(QObject *object)
        : QAccessibleObject(object)
    {
    }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? object()->property("text").toString() : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = text(QAccessible::Name).isEmpty();
        state.readOnly = true;
        return state;
    }
};

// A widget read as one thing: its name says all its painted parts say, so they are no
// children of their own.
class AccessibleWhole : public QAccessibleWidget {
public:
    AccessibleWhole(QWidget *widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
};

// A text that paints itself: its whole text, even when the label shows it cut short.
class AccessibleLabel : public AccessibleWhole {
public:
    AccessibleLabel(QWidget *widget, QString (*text)(const QWidget *), QAccessible::Role role)
        : AccessibleWhole(widget, role)
        , m_text(text)
    {
    }
    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Name && widget()->accessibleName().isEmpty())
            return m_text(widget());
        return AccessibleWhole::text(type);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleWhole::state();
        state.readOnly = true;
        return state;
    }

private:
    QString (*m_text)(const QWidget *);
};

// A colour of the list: one item named by its name, value and pin; Return opens it, the
// menu key offers its actions.
class AccessibleColorRow : public AccessibleWhole {
public:
    explicit AccessibleColorRow(ColorRowView *row)
        : AccessibleWhole(row, QAccessible::ListItem)
    {
    }
    QStringList actionNames() const override { return { pressAction(), showMenuAction() }; }
    void doAction(const QString &action) override
    {
        auto *row = static_cast<ColorRowView *>(widget());
        if (action == pressAction())
            Q_EMIT row->activated();
        else if (action == showMenuAction())
            QCoreApplication::postEvent(row,
                new QContextMenuEvent(QContextMenuEvent::Keyboard, QPoint(24, row->height() / 2),
                    row->mapToGlobal(QPoint(24, row->height() / 2))));
    }
};

// A button whose texts are its own painting (a format line): one push button, pressed as a
// click.
class AccessiblePaintedButton : public AccessibleWhole {
public:
    explicit AccessiblePaintedButton(QAbstractButton *button)
        : AccessibleWhole(button, QAccessible::Button)
    {
    }
    QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            static_cast<QAbstractButton *>(widget())->click();
    }
};

// A screen whose keyboard focus is one of its controls' (its focus proxy): only that control
// reads as focused.
class AccessiblePane : public QAccessibleWidget {
public:
    AccessiblePane(QWidget *widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (widget()->focusProxy())
            state.focused = false;
        return state;
    }
};

QAccessibleInterface *factory(const QString &className, QObject *object)
{
    if (QAccessibleInterface *settings = accessibleSettingsWidget(className, object))
        return settings;
    if (className == QLatin1String("QApplication"))
        return new AccessibleApplication;
    if (object && object == loupeValue())
        return new AccessibleLoupeValue(object);
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (className == QLatin1String("ColorRowView"))
        return new AccessibleColorRow(static_cast<ColorRowView *>(widget));
    if (className == QLatin1String("FormatLine"))
        return new AccessiblePaintedButton(static_cast<FormatLine *>(widget));
    if (className == QLatin1String("ContrastBadge"))
        return new AccessibleWhole(widget, QAccessible::StaticText);
    if (className == QLatin1String("ElidedLabel"))
        return new AccessibleLabel(
            widget, [](const QWidget *label) { return static_cast<const ElidedLabel *>(label)->text(); },
            widget->objectName() == QLatin1String("sectionHeading") ? QAccessible::Heading
                                                                    : QAccessible::StaticText);
    if (className == QLatin1String("CapsuleLabel"))
        return new AccessibleLabel(
            widget, [](const QWidget *label) { return static_cast<const CapsuleLabel *>(label)->text(); },
            QAccessible::StaticText);
    if (className == QLatin1String("ColorSwatch"))
        return new AccessibleLabel(
            widget,
            [](const QWidget *swatch) {
                return static_cast<const ColorSwatch *>(swatch)->color().name().toUpper();
            },
            QAccessible::Graphic);
    if (className == QLatin1String("Divider"))
        return new AccessibleWhole(widget, QAccessible::Separator);
    if (className == QLatin1String("ColorListView") || className == QLatin1String("ColorDetailView"))
        return new AccessiblePane(widget, QAccessible::Pane);
    if (className == QLatin1String("RenameColorSheet"))
        return new AccessiblePane(widget, QAccessible::Dialog);
    if (className == QLatin1String("PopupWindow"))
        return new QAccessibleWidget(widget, QAccessible::Window);
    if (className == QLatin1String("QWidget") && widget->objectName() == QLatin1String("colorList"))
        return new QAccessibleWidget(widget, QAccessible::List);
    if (widget->objectName() == QLatin1String("contrastResult"))
        return new AccessibleWhole(widget, QAccessible::StaticText);
    if (widget->objectName() == QLatin1String("contrastPreview"))
        return new AccessibleWhole(widget, QAccessible::Graphic);
    if (className == QLatin1String("QWidget") && widget->objectName() == QLatin1String("copyConfirmation"))
        return new AccessibleWhole(widget, QAccessible::Notification);
    return nullptr;
}

} // namespace

void installAccessibleWidgets()
{
    QAccessible::installFactory(factory);
}
