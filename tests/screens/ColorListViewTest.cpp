// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorListView.h"
#include "app/Translations.h"
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "screens/ColorRowView.h"
#include "screens/ElidedLabel.h"
#include "services/PreferenceKeys.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ColorListViewTest : public ::testing::Test, public FakeHistoryFacilities {
public: // the case tables below reach in from lambdas
    static void nothing() { }
    void build(const QList<PickedColor> &colors, const QString &format = u"Hex"_s)
    {
        settings.store->setString(PreferenceKeys::colorFormat, format);
        settings.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(colors));
        model = std::make_unique<ColorListViewModel>(
            *settings.store, sampler, clipboard, confirmation, dialogs);
        view = std::make_unique<ColorListView>(*model, *settings.store, nothing, nothing);
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    }

    QWidget *child(const char *name) const { return view->findChild<QWidget *>(QLatin1String(name)); }

    bool shown(const char *name) const { return child(name) && child(name)->isVisibleTo(view.get()); }

    ColorRowView *rowFor(const QUuid &id) const
    {
        const QList<ColorRowView *> rows = view->rows();
        const auto row = std::ranges::find(rows, id, [](const ColorRowView *r) { return r->color().id; });
        return row == rows.end() ? nullptr : *row;
    }

    // A real right click, through the window, as the desktop delivers it.
    QMenu *openContextMenu(ColorRowView *row)
    {
        QTest::mouseClick(view->windowHandle(), Qt::RightButton, {}, row->mapTo(view.get(), QPoint(40, 10)));
        QMenu *menu = nullptr;
        [&] { QTRY_VERIFY((menu = qobject_cast<QMenu *>(QApplication::activePopupWidget()))); }();
        return menu;
    }

    static void clickAction(QMenu *menu, const QString &text)
    {
        ASSERT_NE(menu, nullptr);
        const QList<QAction *> actions = menu->actions();
        const auto action = std::ranges::find(actions, text, &QAction::text);
        ASSERT_NE(action, actions.end()) << text.toStdString();
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(*action).center());
    }

    std::optional<PickedColor> stored(const QUuid &id) const
    {
        const QList<PickedColor> colors = model->colors();
        const auto color = std::ranges::find(colors, id, &PickedColor::id);
        return color == colors.end() ? std::nullopt : std::optional(*color);
    }

    TempSettings settings;
    std::unique_ptr<ColorListViewModel> model;
    std::unique_ptr<ColorListView> view;
};

} // namespace

TEST_F(ColorListViewTest, SectionsCountBadgeAndExportEntriesFollowTheHistory)
{
    const struct {
        const char *what;
        QList<PickedColor> colors;
        bool pinned, recent, empty;
    } cases[] = {
        { "empty", {}, false, false, true },
        { "all pinned", { makeColor(1, 0, 0, true), makeColor(0, 1, 0, true) }, true, false, false },
        { "none pinned", { makeColor(1, 0, 0), makeColor(0, 1, 0), makeColor(0, 0, 1) }, false, true, false },
        { "mixed", { makeColor(1, 0, 0), makeColor(0, 1, 0, true), makeColor(0, 0, 1) }, true, true, false },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        build(c.colors);
        EXPECT_EQ(shown("pinnedHeader"), c.pinned);
        EXPECT_EQ(shown("recentHeader"), c.recent);
        EXPECT_EQ(shown("emptyState"), c.empty);
        // Every colour counts, pinned or not.
        EXPECT_EQ(child("countBadge")->accessibleName(), QString::number(c.colors.size()));
        // Pinned rows come first, each section in history order.
        QList<PickedColor> rows;
        for (const ColorRowView *row : view->rows())
            rows << row->color();
        EXPECT_EQ(rows, model->pinnedColors() + model->recentColors());

        QList<bool> enabled;
        for (const QAction *action : view->exportMenu()->actions())
            enabled << action->isEnabled();
        EXPECT_EQ(enabled, (QList<bool> { c.pinned, c.pinned, true, !c.empty, !c.empty })); // [2]: separator
    }
}

TEST_F(ColorListViewTest, ClickOnRowCopiesInPreferredFormatAndOpensDetail)
{
    const PickedColor first = makeColor(1.0, 0.42, 0.21);
    const PickedColor second = makeColor(0.2, 0.4, 0.8, false, u"Sky"_s);
    build({ first, second }, u"RGB"_s);
    ASSERT_EQ(rowFor(second.id)->valueText(), second.formatted(ColorFormat::rgb));

    QTest::mouseClick(rowFor(second.id), Qt::LeftButton);
    EXPECT_EQ(clipboard.texts, QStringList { second.formatted(ColorFormat::rgb) });
    EXPECT_EQ(confirmation.messages.size(), 1);
    ASSERT_NE(view->detailView(), nullptr);
    EXPECT_EQ(view->detailView()->color(), second);
    EXPECT_TRUE(view->detailView()->isVisible());

    // The detail keeps the colour as opened; the list behind it is fresh when the user comes back.
    model->renameColor(second, u"Later"_s);
    model->togglePin(second);
    EXPECT_EQ(view->detailView()->color(), second);

    QTest::mouseClick(view->detailView()->findChild<QAbstractButton *>(u"backButton"_s), Qt::LeftButton);
    EXPECT_EQ(view->detailView(), nullptr);
    EXPECT_TRUE(child("pickButton")->isVisible());
    EXPECT_TRUE(shown("pinnedHeader"));
    EXPECT_EQ(view->rows().first()->color().name, u"Later"_s);
}

// Copying from the menu stays on the list.
TEST_F(ColorListViewTest, ContextMenuItemsCallTheModel)
{
    const struct {
        const char *item;
        bool copied;
        std::optional<bool> pinned; // none: deleted
    } cases[] = { { "Copy", true, false }, { "Pin", false, true }, { "Delete", false, std::nullopt } };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.item);
        const PickedColor color = makeColor(0.9, 0.1, 0.5);
        build({ color, makeColor(0.1, 0.1, 0.1) }, u"HSL"_s);
        clipboard.texts.clear();
        clickAction(openContextMenu(rowFor(color.id)), QLatin1String(c.item));
        QTRY_VERIFY(!QApplication::activePopupWidget());
        EXPECT_EQ(
            clipboard.texts, c.copied ? QStringList { color.formatted(ColorFormat::hsl) } : QStringList());
        const auto after = stored(color.id);
        EXPECT_EQ(after ? std::optional(after->isPinned) : std::nullopt, c.pinned);
        EXPECT_EQ(view->rows().size(), c.pinned ? 2 : 1);
        EXPECT_EQ(view->detailView(), nullptr);
    }
}

TEST_F(ColorListViewTest, RenameSheetPassesTheTextExactlyAsTyped)
{
    const struct {
        const char *what;
        std::optional<QString> name;
        QString typed; // replaces the field's text
        QString close; // a button or a key
        std::optional<QString> expected;
    } cases[] = {
        { "new name by Return", std::nullopt, u"Sky"_s, u"Return"_s, u"Sky"_s },
        { "empty clears", u"Old"_s, QString(), u"Save"_s, std::nullopt },
        { "blanks are kept", u"Old"_s, u"   "_s, u"Return"_s, u"   "_s },
        { "Cancel keeps", u"Old"_s, u"New"_s, u"Cancel"_s, u"Old"_s },
        { "Escape keeps", std::nullopt, u"New"_s, u"Escape"_s, std::nullopt },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        const PickedColor color = makeColor(1.0, 0.42, 0.21, false, c.name);
        build({ color }, u"CSS rgba"_s);
        clickAction(openContextMenu(view->rows().first()), u"Rename…"_s);
        RenameColorSheet *sheet = nullptr;
        QTRY_VERIFY((sheet = view->findChild<RenameColorSheet *>()) && sheet->isVisible());
        // A sheet inside the popup, not a window of its own that would close it.
        EXPECT_EQ(sheet->window(), view.get());
        EXPECT_EQ(sheet->nameField()->text(), c.name.value_or(QString()));

        QLineEdit *field = sheet->nameField();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, c.typed);
        const QPointer<RenameColorSheet> guard(sheet);
        if (c.close == u"Save" || c.close == u"Cancel")
            QTest::mouseClick(
                c.close == u"Save" ? sheet->saveButton() : sheet->cancelButton(), Qt::LeftButton);
        else
            QTest::keyClick(field, c.close == u"Return" ? Qt::Key_Return : Qt::Key_Escape);
        QTRY_VERIFY(!guard);
        EXPECT_EQ(stored(color.id)->name, c.expected);
        // Back on the list, which shows the name as stored.
        EXPECT_TRUE(shown("pickButton"));
        const auto *name = rowFor(color.id)->findChild<ElidedLabel *>(u"nameLabel"_s);
        EXPECT_EQ(name && name->isVisibleTo(view.get()) ? std::optional(name->text()) : std::nullopt,
            c.expected && !c.expected->isEmpty() ? c.expected : std::nullopt);
    }
}

// Arabic lays the popup out right to left, as its translation says (no setting of ours): the
// footer's Quit comes left of Settings. Without the translation the order is back.
TEST_F(ColorListViewTest, ArabicMirrorsThePopup)
{
    ASSERT_EQ(installTranslations({ u"ar-EG"_s }), u"ar_EG"_s);
    build({ makeColor(1.0, 0.42, 0.21) });
    EXPECT_EQ(view->layoutDirection(), Qt::RightToLeft);
    EXPECT_LT(child("quitButton")->geometry().right(), child("settingsButton")->geometry().left());
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}
