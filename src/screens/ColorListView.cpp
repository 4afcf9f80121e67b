// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorListView.h"

#include "history/ColorListViewModel.h"
#include "screens/CapsuleLabel.h"
#include "screens/ColorDetailView.h"
#include "screens/ColorListFooter.h"
#include "screens/ColorRowView.h"
#include "screens/Divider.h"
#include "screens/ElidedLabel.h"
#include "screens/FormatLine.h"
#include "screens/PaintedButton.h"
#include "screens/RenameColorSheet.h"
#include "screens/SymbolButton.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <algorithm>

ColorListView::ColorListView(ColorListViewModel &viewModel, SettingsStore &store,
    std::function<void()> onOpenSettings, std::function<void()> onQuit, QWidget *parent)
    : QWidget(parent)
    , m_viewModel(viewModel)
    , m_store(store)
{
    auto *root = new QVBoxLayout(this);
    root->setContentsMargins(0, 0, 0, 0);
    root->setSpacing(0);
    // The view is exactly as tall as its content asks; a popup host follows the size hint.
    root->setSizeConstraint(QLayout::SetFixedSize);

    m_listScreen = new QWidget(this);
    m_listScreen->setFixedWidth(viewWidth);
    auto *list = new QVBoxLayout(m_listScreen);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(0);
    list->addWidget(buildHeader());
    list->addWidget(buildPickButton());
    list->addWidget(new Divider(m_listScreen));

    m_emptyState = buildEmptyState();
    list->addWidget(m_emptyState);
    m_scroll = new QScrollArea(m_listScreen);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    list->addWidget(m_scroll);

    list->addWidget(new Divider(m_listScreen));
    m_footer = new ColorListFooter(m_viewModel, std::move(onOpenSettings), std::move(onQuit), m_listScreen);
    list->addWidget(m_footer);
    root->addWidget(m_listScreen);

    connect(&m_viewModel, &ColorListViewModel::colorsChanged, this, &ColorListView::rebuildColors);
    connect(&m_viewModel, &ColorListViewModel::isPickingChanged, this, &ColorListView::updatePicking);
    // Rows show the preferred format; follow a change made in the settings window.
    connect(&m_store, &SettingsStore::changed, this, [this](const QString &key) {
        if (key == PreferenceKeys::colorFormat)
            rebuildColors();
    });

    rebuildColors();
    updatePicking();
}

QMenu *ColorListView::exportMenu() const
{
    return m_footer->exportMenu();
}

QWidget *ColorListView::buildHeader()
{
    auto *header = new QWidget(m_listScreen);
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(14, 10, 14, 10);
    row->setSpacing(8);
    row->addWidget(new SymbolLabel(QStringLiteral("eyedropper"), 13, &Theme::orange, header));
    auto *title = new QLabel(QStringLiteral("vantle"), header);
    title->setFont(Theme::font(13, QFont::Bold));
    row->addWidget(title);
    row->addStretch(1);
    m_countBadge = new CapsuleLabel(
        QStringLiteral("0"), Theme::font(10, QFont::Medium), &Theme::secondaryText,
        [](const QPalette &palette) { return Theme::withAlpha(Theme::secondaryText(palette), 0.1 / 0.62); },
        QMargins(7, 3, 7, 3), header);
    m_countBadge->setObjectName(QStringLiteral("countBadge"));
    // Read after the number: "3, colors".
    //: Spoken after the number of colours in the history ("3 colors")
    m_countBadge->setAccessibleDescription(tr("colors"));
    row->addWidget(m_countBadge);
    return header;
}

QWidget *ColorListView::buildPickButton()
{
    auto *holder = new QWidget(m_listScreen);
    auto *row = new QHBoxLayout(holder);
    row->setContentsMargins(10, 0, 10, 8);
    SymbolButton::Style style;
    style.symbol = QStringLiteral("eyedropper");
    style.symbolSize = 14;
    style.font = Theme::font(13, QFont::DemiBold);
    style.foreground = &Theme::onAccent;
    style.fill = &Theme::orange;
    style.radius = 5;
    style.padding = QMargins(0, 10, 0, 10);
    style.spacing = 8;
    m_pickButton = new SymbolButton(tr("Pick Color"), style, holder);
    m_pickButton->setObjectName(QStringLiteral("pickButton"));
    m_pickButton->setAccessibleName(tr("Pick Color"));
    m_pickButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_pickButton, &QAbstractButton::clicked, this, [this] { m_viewModel.pickColor(); });
    row->addWidget(m_pickButton);
    return holder;
}

QWidget *ColorListView::buildEmptyState()
{
    auto *empty = new QWidget(m_listScreen);
    empty->setObjectName(QStringLiteral("emptyState"));
    auto *stack = new QVBoxLayout(empty);
    stack->setContentsMargins(16, 36, 16, 36);
    stack->setSpacing(8);
    stack->addWidget(
        new SymbolLabel(QStringLiteral("eyedropper"), 32, &Theme::tertiaryText, empty), 0, Qt::AlignHCenter);
    auto *title = new ElidedLabel(tr("No colors yet"), Theme::font(13), &Theme::secondaryText, empty);
    auto *hint = new ElidedLabel(
        tr("Click Pick Color to get started"), Theme::font(11), &Theme::tertiaryText, empty);
    // A language that needs more than the popup's width goes on to a second line.
    for (ElidedLabel *label : { title, hint }) {
        label->setAlignment(Qt::AlignCenter);
        label->setWrapping(true);
        stack->addWidget(label);
    }
    return empty;
}

QWidget *ColorListView::buildSectionHeader(const QString &title, const QString &objectName)
{
    auto *holder = new QWidget;
    holder->setObjectName(objectName);
    auto *layout = new QHBoxLayout(holder);
    layout->setContentsMargins(16, 8, 16, 4);
    auto *heading = new ElidedLabel(title, Theme::font(10, QFont::DemiBold), &Theme::tertiaryText, holder);
    heading->setObjectName(QStringLiteral("sectionHeading"));
    layout->addWidget(heading);
    return holder;
}

ColorRowView *ColorListView::buildRow(const PickedColor &color, ColorFormat format)
{
    ColorListViewModel &model = m_viewModel;
    auto *row = new ColorRowView(
        color, format, [&model, color] { model.copyColor(color); },
        [&model, color] { model.togglePin(color); },
        [&model, color](const QString &name) { model.renameColor(color, name); },
        [&model, color] { model.deleteColor(color); });
    connect(row, &ColorRowView::activated, this, [this, row, color] {
        openColor(color, row->showsFocusRing() ? Qt::ShortcutFocusReason : Qt::OtherFocusReason);
    });
    connect(row, &ColorRowView::renameRequested, this, [this, color] { openRenameSheet(color); });
    row->installEventFilter(this);
    return row;
}

void ColorListView::rebuildColors()
{
    const QList<PickedColor> &colors = m_viewModel.colors();
    const QList<PickedColor> pinned = m_viewModel.pinnedColors();
    const QList<PickedColor> recent = m_viewModel.recentColors();

    m_countBadge->setText(QString::number(colors.size()));
    m_footer->setExportable(!pinned.isEmpty(), !colors.isEmpty());

    // Keep keyboard focus on the same colour across the rebuild; when that colour is gone
    // (deleted), on the row that takes its place, so the next key acts on the list, not on
    // whatever control comes after it.
    std::optional<QUuid> focusedId;
    qsizetype focusedIndex = -1;
    std::optional<QUuid> tabStopId;
    for (qsizetype index = 0; index < m_rows.size(); ++index) {
        ColorRowView *row = m_rows[index];
        if (row->hasFocus()) {
            focusedId = row->color().id;
            focusedIndex = index;
        }
        if (row->focusPolicy() & Qt::TabFocus)
            tabStopId = row->color().id;
    }

    // The old rows may be in the middle of handling the event that caused this rebuild (a
    // context-menu action, a click): hide them now, delete them once that event is done.
    if (QWidget *old = m_scroll->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    m_rows.clear();

    m_emptyState->setVisible(colors.isEmpty());
    m_scroll->setVisible(!colors.isEmpty());
    if (colors.isEmpty()) {
        if (focusedId)
            m_pickButton->setFocus(Qt::OtherFocusReason);
        return;
    }

    const ColorFormat format = SettingsViewModel::currentFormat(m_store);
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("colorList"));
    content->setAccessibleName(tr("Colors"));
    content->setAutoFillBackground(false);
    auto *stack = new QVBoxLayout(content);
    stack->setContentsMargins(0, 4, 0, 4);
    stack->setSpacing(0);
    const auto addSection
        = [&](const QString &title, const QString &objectName, const QList<PickedColor> &section) {
              if (section.isEmpty())
                  return;
              stack->addWidget(buildSectionHeader(title, objectName));
              for (const PickedColor &color : section) {
                  ColorRowView *row = buildRow(color, format);
                  stack->addWidget(row);
                  m_rows.append(row);
              }
          };
    //: Heading of the list of pinned colours, in capitals where the language has them
    addSection(tr("PINNED"), QStringLiteral("pinnedHeader"), pinned);
    addSection(tr("RECENT"), QStringLiteral("recentHeader"), recent);
    stack->addStretch(1);
    m_scroll->setWidget(content);
    fitListHeight();

    // Tab goes from "Pick Color" through the colours to the footer, in the order shown; the
    // rows, made after the footer, would come last otherwise.
    QWidget *previous = m_pickButton;
    ColorRowView *focused = nullptr;
    ColorRowView *tabStop = m_rows.constFirst();
    for (ColorRowView *row : std::as_const(m_rows)) {
        setTabOrder(previous, row);
        previous = row;
        if (focusedId && row->color().id == *focusedId)
            focused = row;
        if (tabStopId && row->color().id == *tabStopId)
            tabStop = row;
    }
    if (!focused && focusedIndex >= 0)
        focused = m_rows.at(qMin(focusedIndex, m_rows.size() - 1));
    makeTabStop(focused ? focused : tabStop);
    if (focused) {
        focused->setFocus(Qt::OtherFocusReason);
        m_scroll->ensureWidgetVisible(focused, 0, 4);
    }
}

void ColorListView::makeTabStop(ColorRowView *tabStop)
{
    for (ColorRowView *row : std::as_const(m_rows))
        row->setFocusPolicy(row == tabStop ? Qt::StrongFocus : Qt::ClickFocus);
}

void ColorListView::setHeightLimit(int heightLimit)
{
    m_heightLimit = heightLimit;
    fitListHeight();
    if (m_detail)
        m_detail->setHeightLimit(heightLimit);
}

void ColorListView::fitListHeight()
{
    const QWidget *content = m_scroll->widget();
    if (!content)
        return;
    // Header, pick button, footer and dividers: what the list screen has besides its rows.
    QLayout *screen = m_listScreen->layout();
    int chrome = screen->contentsMargins().top() + screen->contentsMargins().bottom();
    for (int i = 0; i < screen->count(); ++i) {
        QLayoutItem *item = screen->itemAt(i);
        if (item->widget() != m_scroll && !item->isEmpty())
            chrome += item->sizeHint().height();
    }
    // A few rows stay visible however little room there is.
    constexpr int fewestRowsHeight = 96;
    const int room = qMax(fewestRowsHeight, m_heightLimit - chrome);
    m_scroll->setFixedHeight(std::min({ content->sizeHint().height(), maximumListHeight, room }));
}

void ColorListView::updatePicking()
{
    const bool isPicking = m_viewModel.isPicking();
    m_pickButton->setText(isPicking ? tr("Picking…") : tr("Pick Color"));
    // The name stays "Pick Color"; what it is doing now is its description.
    m_pickButton->setAccessibleDescription(isPicking ? tr("Picking…") : QString());
    m_pickButton->setEnabled(!isPicking);
}

void ColorListView::openColor(const PickedColor &color, Qt::FocusReason reason)
{
    m_viewModel.copyColor(color);
    if (m_detail) {
        m_detail->hide();
        m_detail->deleteLater();
    }
    m_selectedColor = color;
    m_detail = new ColorDetailView(
        color, m_viewModel.colors(),
        [this](const PickedColor &shown, ColorFormat format) { m_viewModel.copyColor(shown, format); },
        [this] { closeDetail(); }, this);
    m_detail->setFixedWidth(viewWidth);
    m_detail->setHeightLimit(m_heightLimit);
    m_listScreen->hide();
    layout()->addWidget(m_detail);
    m_detail->show();
    // On the first format line, the one a person most likely came to copy.
    m_detail->line(allColorFormats.front())->setFocus(reason);
    fadeIn(m_detail);
}

void ColorListView::closeDetail()
{
    if (!m_detail)
        return;
    // Left from the keyboard (Escape, or Back reached with Tab), the row shows its focus ring.
    const auto *focused = qobject_cast<PaintedButton *>(QApplication::focusWidget());
    const bool byKeyboard = focused ? focused->showsFocusRing() : m_detail->hasFocus();
    // Called from the detail screen's own button: delete it once that click is handled.
    m_detail->hide();
    m_detail->deleteLater();
    m_detail = nullptr;
    const std::optional<PickedColor> closed = std::exchange(m_selectedColor, std::nullopt);
    m_listScreen->show();
    fadeIn(m_listScreen);
    refocusRow(closed ? closed->id : QUuid(), byKeyboard ? Qt::ShortcutFocusReason : Qt::OtherFocusReason);
}

void ColorListView::refocusRow(const QUuid &id, Qt::FocusReason reason)
{
    for (ColorRowView *row : std::as_const(m_rows)) {
        if (!id.isNull() && row->color().id == id) {
            row->setFocus(reason);
            m_scroll->ensureWidgetVisible(row, 0, 4);
            return;
        }
    }
    m_pickButton->setFocus(reason);
}

RenameColorSheet *ColorListView::openRenameSheet(const PickedColor &color)
{
    if (m_renameSheet)
        return m_renameSheet;
    ColorListViewModel &model = m_viewModel;
    // Inside the popup, in place of the list: a window of its own would take the focus from the
    // popup, which closes then, and the new name would never be seen.
    m_renameSheet = new RenameColorSheet(
        color, [&model, color](const QString &name) { model.renameColor(color, name); }, this);
    m_renameSheet->setFixedWidth(viewWidth);
    connect(m_renameSheet, &RenameColorSheet::finished, this, &ColorListView::closeRenameSheet);
    m_listScreen->hide();
    layout()->addWidget(m_renameSheet);
    m_renameSheet->show();
    m_renameSheet->setFocus(Qt::OtherFocusReason);
    fadeIn(m_renameSheet);
    return m_renameSheet;
}

void ColorListView::closeRenameSheet()
{
    if (!m_renameSheet)
        return;
    const QUuid renamed = m_renameSheet->color().id;
    const bool byKeyboard = m_renameSheet->closedByKeyboard();
    // Called from the sheet's own button or key: delete it once that event is handled.
    m_renameSheet->hide();
    m_renameSheet->deleteLater();
    m_renameSheet = nullptr;
    m_listScreen->show();
    fadeIn(m_listScreen);
    refocusRow(renamed, byKeyboard ? Qt::ShortcutFocusReason : Qt::OtherFocusReason);
}

void ColorListView::fadeIn(QWidget *screen)
{
    auto *effect = new QGraphicsOpacityEffect(screen);
    effect->setOpacity(0.0);
    screen->setGraphicsEffect(effect); // replaces (and deletes) an effect still fading
    auto *animation = new QVariantAnimation(screen);
    animation->setDuration(screenChangeMilliseconds);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setEasingCurve(QEasingCurve::InOutCubic);
    const QPointer<QGraphicsOpacityEffect> guard(effect);
    connect(animation, &QVariantAnimation::valueChanged, screen, [guard](const QVariant &value) {
        if (guard)
            guard->setOpacity(value.toReal());
    });
    // Drop the effect when done: an idle screen paints directly, with nothing left running.
    connect(animation, &QAbstractAnimation::finished, screen, [screen, guard] {
        if (guard && screen->graphicsEffect() == guard)
            screen->setGraphicsEffect(nullptr);
    });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void ColorListView::moveRowFocus(ColorRowView *from, int key)
{
    // The arrows go one row, Page Up and Down as many as the list shows, Home and End to the
    // ends; the row reached scrolls into view.
    const qsizetype at = m_rows.indexOf(from);
    const qsizetype page = qMax(1, m_scroll->viewport()->height() / qMax(1, from->height()));
    const qsizetype last = m_rows.size() - 1;
    qsizetype index = at;
    switch (key) {
    case Qt::Key_Up:
        index = at - 1;
        break;
    case Qt::Key_Down:
        index = at + 1;
        break;
    case Qt::Key_PageUp:
        index = qMax<qsizetype>(0, at - page);
        break;
    case Qt::Key_PageDown:
        index = qMin(last, at + page);
        break;
    case Qt::Key_Home:
        index = 0;
        break;
    case Qt::Key_End:
        index = last;
        break;
    }
    if (index < 0 || index > last || index == at)
        return;
    ColorRowView *to = m_rows[index];
    to->setFocus(Qt::TabFocusReason);
    m_scroll->ensureWidgetVisible(to, 0, 4);
}

void ColorListView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    // The popup gives its focus to the view: it opens with the focus on "Pick Color". (Not a
    // focus proxy: Tab would then go on to the pick button even while another screen shows.)
    if (m_listScreen->isVisible())
        m_pickButton->setFocus(event->reason());
}

bool ColorListView::eventFilter(QObject *watched, QEvent *event)
{
    auto *row = qobject_cast<ColorRowView *>(watched);
    if (row && event->type() == QEvent::FocusIn)
        makeTabStop(row);
    if (row && event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<QKeyEvent *>(event);
        static constexpr int walkingKeys[]
            = { Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End };
        const bool isPlain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (isPlain && std::ranges::find(walkingKeys, press->key()) != std::end(walkingKeys)) {
            moveRowFocus(row, press->key());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
