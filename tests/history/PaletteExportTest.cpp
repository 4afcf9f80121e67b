// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/PaletteExport.h"
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace {

PickedColor color(
    double r, double g, double b, std::optional<QString> name = std::nullopt, bool pinned = false)
{
    PickedColor c = PickedColor::fromSample(r, g, b, 1.0);
    c.name = std::move(name);
    c.isPinned = pinned;
    return c;
}

const PickedColor sunset = color(1.0, 0.42, 0.21, QStringLiteral("Sunset"));
const PickedColor blue = color(0.2, 0.4, 0.8);

TEST(PaletteExportTest, TextLayout)
{
    struct Case {
        const char *what;
        QList<PickedColor> colors;
        ColorFormat format;
        QByteArray expected;
    };
    const Case cases[] = {
        { "named and unnamed", { sunset, blue }, ColorFormat::hex, "Sunset: #FF6B36\n#3366CC" },
        { "one colour, no final line feed", { blue }, ColorFormat::hex, "#3366CC" },
        { "the given format", { sunset }, ColorFormat::css, "Sunset: rgba(255, 107, 54, 1.0)" },
        { "empty name is no name", { color(1, 0.42, 0.21, QString()) }, ColorFormat::rgb,
            "rgb(255, 107, 54)" },
        { "slash and quote unchanged", { color(0.2, 0.4, 0.8, QStringLiteral("a/b \"c\"")) },
            ColorFormat::hex, "a/b \"c\": #3366CC" },
        { "blanks kept, UTF-8", { color(0.2, 0.4, 0.8, QStringLiteral(" Bleu océan ")) },
            ColorFormat::hexLower,
            " Bleu oc\xc3\xa9"
            "an : #3366cc" },
        { "empty list", {}, ColorFormat::hex, "" },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(exportText(c.colors, c.format), c.expected);
    }
}

TEST(PaletteExportTest, JsonLayout)
{
    struct Case {
        const char *what;
        QList<PickedColor> colors;
        QByteArray expected;
    };
    const Case cases[] = {
        { "sorted keys, name only when named", { sunset, blue },
            "[\n"
            "  {\n"
            "    \"hex\" : \"#FF6B36\",\n"
            "    \"hsl\" : \"hsl(16, 100%, 61%)\",\n"
            "    \"name\" : \"Sunset\",\n"
            "    \"rgb\" : \"rgb(255, 107, 54)\"\n"
            "  },\n"
            "  {\n"
            "    \"hex\" : \"#3366CC\",\n"
            "    \"hsl\" : \"hsl(220, 60%, 50%)\",\n"
            "    \"rgb\" : \"rgb(51, 102, 204)\"\n"
            "  }\n"
            "]" },
        { "escapes: slash, quote, backslash, control", { color(0, 0, 0, QStringLiteral("a/b \"c\" \\ \t")) },
            "[\n"
            "  {\n"
            "    \"hex\" : \"#000000\",\n"
            "    \"hsl\" : \"hsl(0, 0%, 0%)\",\n"
            "    \"name\" : \"a\\/b \\\"c\\\" \\\\ \\t\",\n"
            "    \"rgb\" : \"rgb(0, 0, 0)\"\n"
            "  }\n"
            "]" },
        { "empty name is left out", { color(1, 1, 1, QString()) },
            "[\n"
            "  {\n"
            "    \"hex\" : \"#FFFFFF\",\n"
            "    \"hsl\" : \"hsl(0, 0%, 100%)\",\n"
            "    \"rgb\" : \"rgb(255, 255, 255)\"\n"
            "  }\n"
            "]" },
        { "empty list", {}, "[\n\n]" },
        { "a name with half a surrogate pair cannot be encoded",
            { sunset, color(0, 0, 0, QString(QChar(0xD800))) }, "[]" },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(exportJSON(c.colors), c.expected);
    }
}

class ExportFlowTest : public ::testing::Test, public FakeHistoryFacilities {
protected:
    void SetUp() override
    {
        settings.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        model = std::make_unique<ColorListViewModel>(
            *settings.store, sampler, clipboard, confirmation, dialogs);
    }
    QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }

    const QList<PickedColor> history { color(0.2, 0.4, 0.8),
        color(1.0, 0.42, 0.21, QStringLiteral("Sunset"), true), color(0, 0, 0) };
    TempSettings settings;
    std::unique_ptr<ColorListViewModel> model;
};

TEST_F(ExportFlowTest, WritesTheChosenSelectionInTheChosenLayout)
{
    settings.store->setString(PreferenceKeys::colorFormat, QStringLiteral("RGB"));
    struct Case {
        bool pinnedOnly;
        bool asJSON;
        const char *proposedName;
        QByteArray content;
    };
    const Case cases[] = {
        { true, true, "pinned-colors.json", exportJSON({ history.at(1) }) },
        { true, false, "pinned-colors.txt", "Sunset: rgb(255, 107, 54)" },
        { false, true, "colors.json", exportJSON(history) },
        { false, false, "colors.txt", "rgb(51, 102, 204)\nSunset: rgb(255, 107, 54)\nrgb(0, 0, 0)" },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.proposedName);
        dialogs.saveRequests.clear();
        const QString path = settings.dir.filePath(QString::fromLatin1(c.proposedName));
        dialogs.chosenPath = path;
        model->exportColors(c.pinnedOnly, c.asJSON);
        ASSERT_EQ(dialogs.saveRequests.size(), 1);
        EXPECT_EQ(dialogs.saveRequests.first().proposedName, QString::fromLatin1(c.proposedName));
        EXPECT_EQ(dialogs.saveRequests.first().asJSON, c.asJSON);
        EXPECT_EQ(dialogs.saveRequests.first().folder,
            QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
        EXPECT_EQ(read(path), c.content);
    }
    EXPECT_TRUE(dialogs.failures.isEmpty());
}

TEST_F(ExportFlowTest, ReplacesAnExistingFileWhole)
{
    const QString path = settings.dir.filePath(QStringLiteral("colors.txt"));
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(4096, 'x'));
    old.close();
    dialogs.chosenPath = path;
    model->exportColors(true, false);
    EXPECT_EQ(read(path), "Sunset: #FF6B36");
}

TEST_F(ExportFlowTest, NothingToExportOrCancelledDoesNothing)
{
    model->clearHistory();
    model->deleteColor(model->colors().first());
    dialogs.chosenPath = settings.dir.filePath(QStringLiteral("x.txt"));
    model->exportColors(true, false);
    model->exportColors(false, true);
    EXPECT_TRUE(dialogs.saveRequests.isEmpty());

    SetUp();
    dialogs.chosenPath.reset();
    model->exportColors(false, false);
    EXPECT_EQ(dialogs.saveRequests.size(), 1);
    EXPECT_TRUE(dialogs.failures.isEmpty());
    EXPECT_EQ(QDir(settings.dir.path()).entryList({ QStringLiteral("*.txt") }), QStringList());
}

TEST_F(ExportFlowTest, WriteFailureIsReportedAndLeavesTheHistoryAlone)
{
    const QList<PickedColor> before = model->colors();
    const QString cases[] = {
        settings.dir.path(), // a folder
        settings.dir.filePath(QStringLiteral("vanished/colors.txt")),
    };
    for (const QString &path : cases) {
        SCOPED_TRACE(path.toStdString());
        dialogs.failures.clear();
        dialogs.chosenPath = path;
        model->exportColors(false, false);
        ASSERT_EQ(dialogs.failures.size(), 1);
        EXPECT_FALSE(dialogs.failures.first().isEmpty());
    }
    EXPECT_EQ(model->colors(), before);
}

} // namespace
