// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/AccessibleSettingsWidgets.h"

#include "screens/OnboardingView.h"
#include "screens/SettingsTabButton.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QCoreApplication>
#include <QPointer>
#include <array>

namespace {
// A tab of the settings window: a page tab that says which page is showing and selects on press.
class AccessibleTab : public QAccessibleWidget {
public:
    explicit AccessibleTab(SettingsTabButton *tab)
        : QAccessibleWidget(tab, QAccessible::PageTab)
    {
        addControllingSignal(QStringLiteral("toggled(bool)"));
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = button()->isChecked();
        return state;
    }
    QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            button()->click();
    }

private:
    SettingsTabButton *button() const { return static_cast<SettingsTabButton *>(widget()); }
};

// A drop-down (the default format, the history limit): named by its label as every other
// control is, with the chosen entry as its text, so a reader says "Default format, combo box,
// Hex". Qt on Linux would name it by the chosen entry alone. Its one child is the list of
// entries, and it opens on the reader's press.
class AccessibleChoice : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit AccessibleChoice(QComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
    {
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text type) const override
    {
        const QString name = QAccessibleWidget::text(type);
        if (type == QAccessible::Value || (type == QAccessible::Name && name.isEmpty()))
            return box()->currentText();
        return name;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        return state;
    }
    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == box()->view() ? 0 : -1;
    }
    QStringList actionNames() const override { return { showMenuAction(), pressAction() }; }
    void doAction(const QString &) override { box()->showPopup(); }

    // The chosen entry, read-only, as a reader reads the text of a drop-down.
    QString text(int start, int end) const override { return box()->currentText().mid(start, end - start); }
    int characterCount() const override { return int(box()->currentText().size()); }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    int selectionCount() const override { return 0; }
    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    QComboBox *box() const { return static_cast<QComboBox *>(widget()); }
};

QString onboardingText(const char *text)
{
    return QCoreApplication::translate("OnboardingView", text);
}

// One painted element of the welcome window's current screen: a text or its one button.
class OnboardingItem : public QAccessibleInterface {
public:
    OnboardingItem(OnboardingView *view, int index)
        : m_view(view)
        , m_index(index)
    {
    }
    bool isValid() const override { return m_view; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return parent()->window(); }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString &) override { }
    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name && isValid() ? texts().value(m_index) : QString();
    }
    QAccessible::Role role() const override
    {
        return isButton() ? QAccessible::Button : QAccessible::StaticText;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = isButton();
        state.focused = isButton() && m_view && m_view->hasFocus();
        state.readOnly = !isButton();
        // The button is not there, and takes no press, until it has entered.
        state.invisible = isButton() && m_view && !m_view->isButtonShown();
        return state;
    }
    QRect rect() const override
    {
        if (!m_view)
            return {};
        const QRectF area = !isButton()    ? QRectF(m_view->rect())
            : m_view->currentScreen() == 0 ? m_view->getStartedButtonRect()
                                           : m_view->startUsingButtonRect();
        return QRect(m_view->mapToGlobal(area.topLeft().toPoint()), area.size().toSize());
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface && isButton()
            ? static_cast<QAccessibleActionInterface *>(&m_action)
            : nullptr;
    }

    // The texts of the screen showing, the button's last, in reading order.
    QStringList texts() const
    {
        if (m_view->currentScreen() == 0)
            return { onboardingText("Welcome to vantle"),
                onboardingText("Pick any color from anywhere on your screen with one click."),
                onboardingText(
                    "The color value is copied to your clipboard instantly in your preferred format."),
                onboardingText("Pin your favorite colors and build a palette you can export anytime."),
                onboardingText("Get Started") };
        return { onboardingText("You're all set."),
            onboardingText("Look for the eyedropper icon in your system tray."),
            onboardingText("Start Using vantle") };
    }

private:
    bool isButton() const { return m_view && m_index == texts().size() - 1; }

    class Press : public QAccessibleActionInterface {
    public:
        explicit Press(OnboardingItem *item)
            : m_item(item)
        {
        }
        QStringList actionNames() const override { return { pressAction() }; }
        QStringList keyBindingsForAction(const QString &) const override { return {}; }
        void doAction(const QString &action) override
        {
            OnboardingView *view = m_item->m_view;
            if (action != pressAction() || !view)
                return;
            if (view->currentScreen() == 0)
                view->getStarted();
            else
                view->startUsing();
        }

    private:
        OnboardingItem *m_item;
    };

    QPointer<OnboardingView> m_view;
    const int m_index;
    Press m_action { this };
};

// The welcome window's view: its screen's texts and button as children, rebuilt per screen.
class AccessibleOnboarding : public QAccessibleWidget {
public:
    explicit AccessibleOnboarding(OnboardingView *view)
        : QAccessibleWidget(view, QAccessible::Pane)
    {
    }
    ~AccessibleOnboarding() override
    {
        for (const auto &items : m_items)
            for (OnboardingItem *item : items)
                QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(item));
    }
    int childCount() const override { return int(items().size()); }
    QAccessibleInterface *child(int index) const override { return items().value(index); }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return int(items().indexOf(const_cast<QAccessibleInterface *>(child)));
    }
    QAccessibleInterface *focusChild() const override
    {
        return view()->hasFocus() ? items().constLast() : nullptr;
    }
    // The keyboard focus of the view is its button's: that is what a screen reader announces.
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = false;
        return state;
    }
    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? items().constFirst()->text(QAccessible::Name) : QString();
    }

private:
    OnboardingView *view() const { return static_cast<OnboardingView *>(widget()); }
    QList<QAccessibleInterface *> items() const
    {
        const int screen = view()->currentScreen();
        QList<OnboardingItem *> &items = m_items[screen];
        if (items.isEmpty()) {
            const qsizetype count = screen == 0 ? 5 : 3;
            for (int index = 0; index < count; ++index) {
                auto *item = new OnboardingItem(view(), index);
                QAccessible::registerAccessibleInterface(item);
                items.append(item);
            }
        }
        return { items.cbegin(), items.cend() };
    }

    mutable std::array<QList<OnboardingItem *>, 2> m_items;
};
} // namespace

QAccessibleInterface *accessibleSettingsWidget(const QString &className, QObject *object)
{
    if (className == QLatin1String("SettingsTabButton"))
        return new AccessibleTab(static_cast<SettingsTabButton *>(object));
    if (className == QLatin1String("QWidget") && object->objectName() == QLatin1String("settingsTabBar"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::PageTabList);
    if (className == QLatin1String("QComboBox"))
        return new AccessibleChoice(static_cast<QComboBox *>(object));
    if (className == QLatin1String("OnboardingView"))
        return new AccessibleOnboarding(static_cast<OnboardingView *>(object));
    // A screen reader announces a window by its role: the settings as a dialog, the welcome as
    // a window (a plain top-level widget would be a nameless filler).
    if (className == QLatin1String("SettingsView"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Dialog);
    if (className == QLatin1String("OnboardingWindow"))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Window);
    return nullptr;
}
