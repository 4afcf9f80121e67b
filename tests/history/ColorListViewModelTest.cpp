// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ColorListViewModel.h"
#include "history/PaletteExport.h"
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

class ColorListViewModelTest : public ::testing::Test, public FakeHistoryFacilities {
protected:
    void startWith(const QList<PickedColor> &history)
    {
        if (!history.isEmpty())
            settings.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        model = std::make_unique<ColorListViewModel>(
            *settings.store, sampler, clipboard, confirmation, dialogs);
    }
    QList<PickedColor> stored() const
    {
        return decodeColorHistory(settings.store->dataForKey(PreferenceKeys::colorHistory).value_or("[]"))
            .value();
    }

    TempSettings settings;
    std::unique_ptr<ColorListViewModel> model;
};

TEST_F(ColorListViewModelTest, APickIsFiledSavedCopiedAndAnnouncedOnce)
{
    const PickedColor older = makeColor(0.1, 0.5, 0.25);
    startWith({ older });
    QSignalSpy picking(model.get(), &ColorListViewModel::isPickingChanged);
    QSignalSpy saves(settings.store.get(), &SettingsStore::changed);
    QList<PickedColor> announced;
    model->onColorPicked = [&](const PickedColor &color) {
        EXPECT_TRUE(model->isPicking()); // announced before the pick ends
        announced << color;
    };

    model->pickColor();
    model->pickColor(); // a second trigger while picking is ignored
    EXPECT_EQ(sampler.pickCount, 1);
    // The format is read when the sampler answers.
    settings.store->setString(PreferenceKeys::colorFormat, QStringLiteral("CSS rgba"));
    sampler.finish(1.0, 0.42, 0.21);

    ASSERT_EQ(model->colors().size(), 2);
    const PickedColor picked = model->colors().first();
    EXPECT_EQ(std::tuple(picked.red, picked.green, picked.blue, picked.isPinned),
        std::tuple(1.0, 0.42, 0.21, false));
    EXPECT_EQ(model->colors().at(1), older);
    EXPECT_EQ(clipboard.texts, QStringList { QStringLiteral("rgba(255, 107, 54, 1.0)") });
    EXPECT_EQ(confirmation.messages, QStringList { QStringLiteral("Copied rgba(255, 107, 54, 1.0)") });
    EXPECT_EQ(announced, QList { picked });
    EXPECT_FALSE(model->isPicking());
    EXPECT_EQ(picking.count(), 2);
    EXPECT_EQ(saves.count(), 2); // the format, then the history
    EXPECT_EQ(stored(), model->colors());

    // The same colour again is a record of its own; a cancelled pick only ends the picking.
    model->pickColor();
    sampler.finish(1.0, 0.42, 0.21);
    model->pickColor();
    sampler.cancel();
    ASSERT_EQ(model->colors().size(), 3);
    EXPECT_NE(model->colors().at(0).id, model->colors().at(1).id);
    EXPECT_EQ(announced.size(), 2);
    EXPECT_EQ(clipboard.texts.size(), 2);
    EXPECT_EQ(saves.count(), 3);
    EXPECT_FALSE(model->isPicking());
}

TEST_F(ColorListViewModelTest, PickLandsOnTheListAsItStandsWhenTheSamplerAnswers)
{
    settings.store->setInteger(PreferenceKeys::historyLimit, 2);
    const PickedColor a = makeColor(0.1, 0.5, 0.25), b = makeColor(0.2, 0.5, 0.25);
    startWith({ a, b });
    model->pickColor();
    model->deleteColor(a); // while the picker is open
    model->togglePin(b);
    const PickedColor pinnedB = model->colors().first();
    settings.store->setInteger(PreferenceKeys::historyLimit, 1);
    sampler.finish(0.9, 0.9, 0.9);

    ASSERT_EQ(model->colors().size(), 2);
    EXPECT_EQ(model->colors().at(0).red, 0.9);
    EXPECT_EQ(model->colors().at(1), pinnedB);
    EXPECT_EQ(stored(), model->colors());
}

TEST_F(ColorListViewModelTest, PickTrimsOnlyTheOldestUnpinnedColours)
{
    const struct {
        std::optional<qint64> storedLimit;
        int pinned, unpinned, expectedUnpinned;
        bool isPinnedNewest = false; // else the pinned colours are the oldest of all
    } cases[] = {
        { 20, 5, 20, 20 }, // one over: the oldest unpinned colour goes
        { 20, 5, 10, 11 }, // under the limit: nothing goes
        { 0, 2, 50, 50 }, // 0 or less means 50
        { std::nullopt, 0, 50, 50 }, // and so does a missing one
        // Pinned colours among the newest count towards nothing either.
        { 4, 3, 3, 4, true },
        { 2, 2, 3, 2, true },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(
            testing::Message() << c.storedLimit.value_or(-1) << " " << c.pinned << " " << c.unpinned);
        TempSettings fresh;
        if (c.storedLimit)
            fresh.store->setInteger(PreferenceKeys::historyLimit, *c.storedLimit);
        // Newest first; pinned colours every other place from the newest on, or all the oldest.
        QList<PickedColor> history, unpinned, pinned;
        for (int i = 0; i < c.unpinned + c.pinned; ++i) {
            const bool isPinned = c.isPinnedNewest ? (i % 2 == 0 && i / 2 < c.pinned) || i >= 2 * c.unpinned
                                                   : i >= c.unpinned;
            history.append(makeColor(i / 100.0, 0.5, 0.25, isPinned));
            (isPinned ? pinned : unpinned).append(history.last());
        }
        fresh.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        ColorListViewModel m(*fresh.store, sampler, clipboard, confirmation, dialogs);
        m.pickColor();
        sampler.finish(1, 1, 1);

        EXPECT_EQ(m.colors().first().red, 1.0);
        EXPECT_EQ(m.recentColors().mid(1), unpinned.mid(0, c.expectedUnpinned - 1)); // the newest, in order
        EXPECT_EQ(m.pinnedColors(), pinned);
    }
}

TEST_F(ColorListViewModelTest, SavesExactlyWhereTheHistoryChanges)
{
    const PickedColor a = makeColor(0.1, 0.5, 0.25), b = makeColor(0.2, 0.5, 0.25, true),
                      gone = makeColor(0.3, 0.5, 0.25);
    const struct {
        const char *operation;
        std::function<void(ColorListViewModel &)> run;
        int saves, changes;
    } cases[] = {
        { "pin", [&](ColorListViewModel &m) { m.togglePin(a); }, 1, 1 },
        { "pin a missing colour", [&](ColorListViewModel &m) { m.togglePin(gone); }, 0, 0 },
        { "rename", [&](ColorListViewModel &m) { m.renameColor(a, QStringLiteral("Sea")); }, 1, 1 },
        { "delete", [&](ColorListViewModel &m) { m.deleteColor(a); }, 1, 1 },
        { "delete a missing colour", [&](ColorListViewModel &m) { m.deleteColor(gone); }, 1, 0 },
        { "clear twice", [&](ColorListViewModel &m) { m.clearHistory(), m.clearHistory(); }, 2, 1 },
        { "copy in a format", [&](ColorListViewModel &m) { m.copyColor(b, ColorFormat::hsl); }, 0, 0 },
        { "trim that removes", [&](ColorListViewModel &m) { m.trimHistory(0); }, 1, 1 },
        { "trim that removes nothing", [&](ColorListViewModel &m) { m.trimHistory(1); }, 0, 0 },
        { "trim to the stored limit", [&](ColorListViewModel &m) { m.trimHistory(); }, 0, 0 },
        { "load again", [&](ColorListViewModel &m) { m.loadHistory(); }, 0, 0 },
    };
    for (const auto &c : cases) {
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

TEST_F(ColorListViewModelTest, EditsFindTheColourByIdAndClearKeepsThePinned)
{
    const PickedColor a = makeColor(0.1, 0.5, 0.25), b = makeColor(0.2, 0.5, 0.25),
                      pinned = makeColor(0.3, 0.5, 0.25, true), c = makeColor(0.4, 0.5, 0.25);
    startWith({ a, b, pinned, c });
    model->renameColor(b, QStringLiteral("Sea"));
    model->togglePin(b); // the stale value without the name still finds the colour
    EXPECT_EQ(model->pinnedColors().first().name, QStringLiteral("Sea"));
    model->clearHistory();
    EXPECT_EQ(model->colors().size(), 2);
    EXPECT_EQ(model->colors().at(1), pinned);
    model->deleteColor(b);
    EXPECT_EQ(model->colors(), QList { pinned });
}

// The confirmation says "Copied" only for text that reached the clipboard.
TEST_F(ColorListViewModelTest, ConfirmsOnlyWhatWasCopied)
{
    const PickedColor a = makeColor(1.0, 0.5, 0.25);
    startWith({ a });
    clipboard.accepts = false;
    model->copyColor(a);
    ASSERT_EQ(confirmation.messages.size(), 1);
    EXPECT_FALSE(confirmation.messages.first().startsWith(QStringLiteral("Copied")));
}

// How files are written (whole or not at all) is AtomicFileTest's; here, what goes where.
TEST_F(ColorListViewModelTest, ExportWritesTheChosenSelectionInTheChosenLayout)
{
    const QList<PickedColor> history { makeColor(0.2, 0.5, 0.25), makeColor(1.0, 0.5, 0.25, true),
        makeColor(0, 0.5, 0.25) };
    startWith(history);
    settings.store->setString(PreferenceKeys::colorFormat, QStringLiteral("RGB"));
    const struct {
        bool pinnedOnly, asJSON;
        const char *proposedName;
        QByteArray content;
    } cases[] = {
        { true, true, "pinned-colors.json", exportJSON({ history.at(1) }) },
        { true, false, "pinned-colors.txt", "rgb(255, 128, 64)" },
        { false, true, "colors.json", exportJSON(history) },
        { false, false, "colors.txt", "rgb(51, 128, 64)\nrgb(255, 128, 64)\nrgb(0, 128, 64)" },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.proposedName);
        dialogs.saveRequests.clear();
        dialogs.chosenPath = settings.dir.filePath(QString::fromLatin1(c.proposedName));
        model->exportColors(c.pinnedOnly, c.asJSON);
        ASSERT_EQ(dialogs.saveRequests.size(), 1);
        EXPECT_EQ(dialogs.saveRequests.first().proposedName, QString::fromLatin1(c.proposedName));
        EXPECT_EQ(dialogs.saveRequests.first().asJSON, c.asJSON);
        // Downloads, or home: never the program's working folder.
        const QString folder = dialogs.saveRequests.first().folder;
        EXPECT_TRUE(QDir(folder).exists() && QDir::isAbsolutePath(folder)) << folder.toStdString();
        QFile file(*dialogs.chosenPath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == c.content);
    }
    EXPECT_TRUE(dialogs.failures.isEmpty());

    dialogs.chosenPath.reset(); // cancelled
    model->exportColors(false, false);
    dialogs.chosenPath = settings.dir.path(); // a folder: the failure is reported
    model->exportColors(false, false);
    ASSERT_EQ(dialogs.failures.size(), 1);
    EXPECT_TRUE(dialogs.failures.first().contains(settings.dir.path()));
    model->clearHistory();
    model->deleteColor(model->colors().first());
    model->exportColors(true, false);
    model->exportColors(false, true);
    EXPECT_EQ(dialogs.saveRequests.size(), 3) << "no dialog without colours";
}

} // namespace
