// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <memory>

namespace {

PickedColor makeColor(double red, bool pinned = false, std::optional<QString> name = std::nullopt)
{
    PickedColor color = PickedColor::fromSample(red, 0.5, 0.25, 1.0);
    color.isPinned = pinned;
    color.name = std::move(name);
    return color;
}

class ColorListViewModelTest : public ::testing::Test, public FakeHistoryFacilities {
protected:
    SettingsStore &store() { return *settings.store; }

    // Stores `history` as a previous run would have left it, then starts the model on it.
    void startWith(const QList<PickedColor> &history)
    {
        store().setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        start();
    }
    void start()
    {
        model = std::make_unique<ColorListViewModel>(store(), sampler, clipboard, confirmation, dialogs);
        colorsChanged = std::make_unique<QSignalSpy>(model.get(), &ColorListViewModel::colorsChanged);
        pickingChanged = std::make_unique<QSignalSpy>(model.get(), &ColorListViewModel::isPickingChanged);
        storeChanged = std::make_unique<QSignalSpy>(&store(), &SettingsStore::changed);
    }
    int saves() const
    {
        int count = 0;
        for (const QList<QVariant> &call : *storeChanged)
            count += call.at(0).toString() == PreferenceKeys::colorHistory;
        return count;
    }
    QList<PickedColor> stored() const
    {
        return decodeColorHistory(
            settings.store->dataForKey(PreferenceKeys::colorHistory).value_or(QByteArray()))
            .value_or(QList<PickedColor>());
    }

    TempSettings settings;
    std::unique_ptr<ColorListViewModel> model;
    std::unique_ptr<QSignalSpy> colorsChanged;
    std::unique_ptr<QSignalSpy> pickingChanged;
    std::unique_ptr<QSignalSpy> storeChanged;
};

TEST_F(ColorListViewModelTest, PickFilesSavesCopiesAndAnnouncesTheColour)
{
    const PickedColor older = makeColor(0.1);
    startWith({ older });
    std::optional<PickedColor> announced;
    model->onColorPicked = [&](const PickedColor &color) {
        EXPECT_TRUE(model->isPicking()); // announced before the pick ends
        announced = color;
    };

    model->pickColor();
    EXPECT_TRUE(model->isPicking());
    EXPECT_TRUE(sampler.isOpen());
    sampler.finish(1.0, 0.42, 0.21);

    ASSERT_EQ(model->colors().size(), 2);
    const PickedColor &picked = model->colors().first();
    EXPECT_EQ(picked.red, 1.0);
    EXPECT_EQ(picked.green, 0.42);
    EXPECT_EQ(picked.blue, 0.21);
    EXPECT_FALSE(picked.isPinned);
    EXPECT_FALSE(picked.name.has_value());
    EXPECT_EQ(model->colors().at(1), older);
    EXPECT_EQ(clipboard.texts, QStringList { QStringLiteral("#FF6B36") });
    EXPECT_EQ(confirmation.messages, QStringList { QStringLiteral("Copied #FF6B36") });
    ASSERT_TRUE(announced.has_value());
    EXPECT_EQ(*announced, picked);
    EXPECT_FALSE(model->isPicking());
    EXPECT_EQ(pickingChanged->count(), 2);
    EXPECT_EQ(saves(), 1);
    EXPECT_EQ(stored(), model->colors());
}

TEST_F(ColorListViewModelTest, PickCopiesInThePreferredFormatReadAtThatMoment)
{
    start();
    model->pickColor();
    store().setString(PreferenceKeys::colorFormat, QStringLiteral("CSS rgba"));
    sampler.finish(1.0, 0.42, 0.21);
    EXPECT_EQ(confirmation.messages, QStringList { QStringLiteral("Copied rgba(255, 107, 54, 1.0)") });
}

TEST_F(ColorListViewModelTest, CancelledPickOnlyEndsThePicking)
{
    startWith({ makeColor(0.1) });
    const QList<PickedColor> before = model->colors();
    bool announced = false;
    model->onColorPicked = [&](const PickedColor &) { announced = true; };

    model->pickColor();
    sampler.cancel();

    EXPECT_FALSE(model->isPicking());
    EXPECT_EQ(model->colors(), before);
    EXPECT_TRUE(clipboard.texts.isEmpty());
    EXPECT_TRUE(confirmation.messages.isEmpty());
    EXPECT_FALSE(announced);
    EXPECT_EQ(saves(), 0);
    EXPECT_EQ(colorsChanged->count(), 0);
}

TEST_F(ColorListViewModelTest, SecondTriggerWhilePickingIsIgnored)
{
    start();
    model->pickColor();
    model->pickColor();
    EXPECT_EQ(sampler.pickCount, 1);
    sampler.finish(0.2, 0.4, 0.8);
    EXPECT_EQ(model->colors().size(), 1);
    EXPECT_EQ(pickingChanged->count(), 2);

    model->pickColor(); // the next pick after the first has ended is accepted
    EXPECT_EQ(sampler.pickCount, 2);
}

TEST_F(ColorListViewModelTest, PickLandsOnTheListAsItStandsWhenTheSamplerAnswers)
{
    store().setInteger(PreferenceKeys::historyLimit, 2);
    const PickedColor a = makeColor(0.1), b = makeColor(0.2), c = makeColor(0.3);
    startWith({ a, b });
    model->pickColor();
    model->deleteColor(a); // while the picker is open
    model->togglePin(b);
    const PickedColor pinnedB = model->colors().first();
    store().setInteger(PreferenceKeys::historyLimit, 1);
    sampler.finish(0.9, 0.9, 0.9);

    ASSERT_EQ(model->colors().size(), 2);
    EXPECT_EQ(model->colors().at(0).red, 0.9);
    EXPECT_EQ(model->colors().at(1), pinnedB);
    EXPECT_EQ(stored(), model->colors());
}

TEST_F(ColorListViewModelTest, PickingTheSameColourTwiceGivesTwoRecords)
{
    start();
    for (int i = 0; i < 2; ++i) {
        model->pickColor();
        sampler.finish(0.5, 0.5, 0.5);
    }
    ASSERT_EQ(model->colors().size(), 2);
    EXPECT_NE(model->colors().at(0).id, model->colors().at(1).id);
    EXPECT_GE(model->colors().at(0).timestamp, model->colors().at(1).timestamp);
}

TEST_F(ColorListViewModelTest, PickTrimsOnlyTheOldestUnpinnedColours)
{
    struct Case {
        std::optional<qint64> storedLimit;
        int pinned;
        int unpinned;
        int expectedUnpinned;
    };
    const Case cases[] = {
        { 20, 5, 20, 20 }, // one over: the oldest unpinned colour goes
        { 20, 5, 10, 11 }, // under the limit: nothing goes
        { 0, 0, 50, 50 }, // 0 means 50
        { -3, 2, 50, 50 }, // so does a negative value
        { std::nullopt, 0, 50, 50 }, // and a missing one
        { 1, 3, 4, 1 },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "limit " << c.storedLimit.value_or(-999) << ", " << c.pinned
                                        << " pinned, " << c.unpinned << " unpinned");
        TempSettings fresh;
        if (c.storedLimit)
            fresh.store->setInteger(PreferenceKeys::historyLimit, *c.storedLimit);
        // Newest first; the oldest colour of all is pinned and must survive.
        QList<PickedColor> history;
        for (int i = 0; i < c.unpinned; ++i)
            history.append(makeColor(i / 100.0));
        for (int i = 0; i < c.pinned; ++i)
            history.append(makeColor(i / 100.0, true));
        fresh.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        ColorListViewModel m(*fresh.store, sampler, clipboard, confirmation, dialogs);
        m.pickColor();
        sampler.finish(1, 1, 1);

        EXPECT_EQ(m.recentColors().size(), c.expectedUnpinned);
        EXPECT_EQ(m.pinnedColors().size(), c.pinned);
        EXPECT_EQ(m.colors().first().red, 1.0);
        // The survivors are the newest, in their order.
        QList<PickedColor> expectedRecent = history.mid(0, c.expectedUnpinned - 1);
        EXPECT_EQ(m.recentColors().mid(1), expectedRecent);
        if (c.pinned > 0) {
            EXPECT_EQ(m.colors().last(), history.last());
        }
    }
}

TEST_F(ColorListViewModelTest, LoadKeepsAnOverlongHistoryUntilTheNextPick)
{
    store().setInteger(PreferenceKeys::historyLimit, 2);
    startWith({ makeColor(0.1), makeColor(0.2), makeColor(0.3), makeColor(0.4) });
    EXPECT_EQ(model->colors().size(), 4);
    model->togglePin(model->colors().at(0));
    model->togglePin(model->colors().at(0)); // unpinning over the limit trims nothing either
    EXPECT_EQ(model->colors().size(), 4);
    model->pickColor();
    sampler.finish(1, 1, 1);
    EXPECT_EQ(model->colors().size(), 2);
}

// Every operation with whether it must write `colorHistory` and whether the list changes.
TEST_F(ColorListViewModelTest, SavesExactlyWhereTheHistoryChangesHands)
{
    const PickedColor a = makeColor(0.1), b = makeColor(0.2, true), gone = makeColor(0.3);
    struct Case {
        const char *operation;
        std::function<void(ColorListViewModel &)> run;
        int saves;
        int changes;
    };
    const Case cases[] = {
        { "pin", [&](ColorListViewModel &m) { m.togglePin(a); }, 1, 1 },
        { "pin a missing colour", [&](ColorListViewModel &m) { m.togglePin(gone); }, 0, 0 },
        { "rename", [&](ColorListViewModel &m) { m.renameColor(a, QStringLiteral("Sea")); }, 1, 1 },
        { "rename a missing colour", [&](ColorListViewModel &m) { m.renameColor(gone, QStringLiteral("x")); },
            0, 0 },
        { "delete", [&](ColorListViewModel &m) { m.deleteColor(a); }, 1, 1 },
        { "delete a missing colour", [&](ColorListViewModel &m) { m.deleteColor(gone); }, 1, 0 },
        { "clear", [&](ColorListViewModel &m) { m.clearHistory(); }, 1, 1 },
        { "clear with nothing to clear",
            [&](ColorListViewModel &m) {
                m.clearHistory();
                m.clearHistory();
            },
            2, 1 },
        { "copy", [&](ColorListViewModel &m) { m.copyColor(a); }, 0, 0 },
        { "copy in a format", [&](ColorListViewModel &m) { m.copyColor(b, ColorFormat::hsl); }, 0, 0 },
        { "trim that removes", [&](ColorListViewModel &m) { m.trimHistory(0); }, 1, 1 },
        { "trim that removes nothing", [&](ColorListViewModel &m) { m.trimHistory(1); }, 0, 0 },
        { "trim to the stored limit", [&](ColorListViewModel &m) { m.trimHistory(); }, 0, 0 },
        { "load again", [&](ColorListViewModel &m) { m.loadHistory(); }, 0, 0 },
        { "export", [&](ColorListViewModel &m) { m.exportColors(false, true); }, 0, 0 },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.operation);
        TempSettings fresh;
        fresh.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory({ a, b }));
        ColorListViewModel m(*fresh.store, sampler, clipboard, confirmation, dialogs);
        QSignalSpy changed(fresh.store.get(), &SettingsStore::changed);
        QSignalSpy listChanged(&m, &ColorListViewModel::colorsChanged);
        c.run(m);
        EXPECT_EQ(changed.count(), c.saves);
        EXPECT_EQ(listChanged.count(), c.changes);
        EXPECT_EQ(decodeColorHistory(*fresh.store->dataForKey(PreferenceKeys::colorHistory)), m.colors());
    }
}

TEST_F(ColorListViewModelTest, OperationsFindTheColourByIdNotByValue)
{
    const PickedColor a = makeColor(0.1), b = makeColor(0.2);
    startWith({ a, b });
    model->renameColor(b, QStringLiteral("Sky"));
    model->togglePin(b); // the stale value without the name still finds the colour
    ASSERT_EQ(model->pinnedColors().size(), 1);
    EXPECT_EQ(model->pinnedColors().first().name, QStringLiteral("Sky"));
    EXPECT_EQ(model->recentColors(), QList<PickedColor> { a });
    model->deleteColor(b);
    EXPECT_EQ(model->colors(), QList<PickedColor> { a });
}

TEST_F(ColorListViewModelTest, RenameKeepsBlanksAndEmptyRemovesTheName)
{
    const PickedColor a = makeColor(0.1, false, QStringLiteral("Old"));
    startWith({ a });
    model->renameColor(a, QStringLiteral("  "));
    EXPECT_EQ(model->colors().first().name, QStringLiteral("  "));
    EXPECT_EQ(stored().first().name, QStringLiteral("  "));
    model->renameColor(a, QString());
    EXPECT_FALSE(model->colors().first().name.has_value());
    EXPECT_FALSE(stored().first().name.has_value());
}

TEST_F(ColorListViewModelTest, ClearKeepsPinnedColoursInTheirOrder)
{
    const PickedColor p1 = makeColor(0.1, true), u1 = makeColor(0.2), p2 = makeColor(0.3, true),
                      u2 = makeColor(0.4);
    startWith({ p1, u1, p2, u2 });
    model->clearHistory();
    EXPECT_EQ(model->colors(), (QList<PickedColor> { p1, p2 }));
}

TEST_F(ColorListViewModelTest, CopyLeavesTheHistoryAloneAndConfirmsOnlyWhatReachedTheClipboard)
{
    const PickedColor a = makeColor(1.0);
    startWith({ makeColor(0.2), a });
    const QList<PickedColor> before = model->colors();
    store().setString(PreferenceKeys::colorFormat, QStringLiteral("Hex (lowercase)"));
    model->copyColor(a);
    model->copyColor(a, ColorFormat::rgb);
    EXPECT_EQ(
        clipboard.texts, (QStringList { QStringLiteral("#ff8040"), QStringLiteral("rgb(255, 128, 64)") }));
    EXPECT_EQ(confirmation.messages,
        (QStringList { QStringLiteral("Copied #ff8040"), QStringLiteral("Copied rgb(255, 128, 64)") }));
    EXPECT_EQ(model->colors(), before);

    clipboard.accepts = false;
    model->copyColor(a);
    ASSERT_EQ(confirmation.messages.size(), 3);
    EXPECT_FALSE(confirmation.messages.last().startsWith(QStringLiteral("Copied")));
}

TEST_F(ColorListViewModelTest, UnreadableStoredHistoryIsKeptAsideAndTheModelStartsEmpty)
{
    const QByteArray unreadable = QByteArrayLiteral("[{\"id\":\"not a uuid\",\"red\":1}]");
    store().setData(PreferenceKeys::colorHistory, unreadable);
    start();
    EXPECT_TRUE(model->colors().isEmpty());
    EXPECT_TRUE(confirmation.messages.isEmpty());

    const QDir folder = settings.dir.path();
    const QStringList pattern { QStringLiteral("colorHistory.json.unreadable-*") };
    QStringList backups = folder.entryList(pattern, QDir::Files);
    ASSERT_EQ(backups.size(), 1);
    QFile backup(folder.filePath(backups.first()));
    ASSERT_TRUE(backup.open(QIODevice::ReadOnly));
    EXPECT_EQ(backup.readAll(), unreadable);

    start(); // the next launch finds the same value: no second copy
    EXPECT_EQ(folder.entryList(pattern, QDir::Files).size(), 1);

    model->pickColor();
    sampler.finish(1, 1, 1);
    EXPECT_EQ(stored().size(), 1); // the next save replaces the value; the copy stays
    EXPECT_EQ(folder.entryList(pattern, QDir::Files), backups);
}

TEST_F(ColorListViewModelTest, SamplerAnsweringAfterTheModelIsGoneIsHarmless)
{
    start();
    model->pickColor();
    model.reset();
    sampler.finish(1, 1, 1);
    EXPECT_EQ(saves(), 0);
}

} // namespace
