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
    EXPECT_EQ(exportJSON({ sunset, blue }),
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
        "]");
    // Slash, quote, backslash and control characters escaped; an empty name is no name.
    EXPECT_TRUE(exportJSON({ color(0, 0, 0, QStringLiteral("a/b \"c\" \\ \t")) })
                    .contains("    \"name\" : \"a\\/b \\\"c\\\" \\\\ \\t\",\n"));
    EXPECT_FALSE(exportJSON({ color(1, 1, 1, QString()) }).contains("name"));
    EXPECT_EQ(exportJSON({}), "[\n\n]");
    EXPECT_EQ(exportJSON({ sunset, color(0, 0, 0, QString(QChar(0xD800))) }), "[]")
        << "half a surrogate pair";
}

class ExportFlowTest : public ::testing::Test, public FakeHistoryFacilities {
protected:
    void SetUp() override
    {
        settings.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
        settings.store->setString(PreferenceKeys::colorFormat, QStringLiteral("RGB"));
        model = std::make_unique<ColorListViewModel>(
            *settings.store, sampler, clipboard, confirmation, dialogs);
    }

    const QList<PickedColor> history { blue, color(1.0, 0.42, 0.21, QStringLiteral("Sunset"), true),
        color(0, 0, 0) };
    TempSettings settings;
    std::unique_ptr<ColorListViewModel> model;
};

// How files are written (whole or not at all) is AtomicFileTest's; here, what goes where.
TEST_F(ExportFlowTest, WritesTheChosenSelectionInTheChosenLayout)
{
    const struct {
        bool pinnedOnly, asJSON;
        const char *proposedName;
        QByteArray content;
    } cases[] = {
        { true, true, "pinned-colors.json", exportJSON({ history.at(1) }) },
        { true, false, "pinned-colors.txt", "Sunset: rgb(255, 107, 54)" },
        { false, true, "colors.json", exportJSON(history) },
        { false, false, "colors.txt", "rgb(51, 102, 204)\nSunset: rgb(255, 107, 54)\nrgb(0, 0, 0)" },
    };
    for (const auto &c : cases) {
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
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == c.content);
    }
    EXPECT_TRUE(dialogs.failures.isEmpty());
}

TEST_F(ExportFlowTest, NothingToExportCancelledOrUnwritableWritesNothing)
{
    dialogs.chosenPath.reset(); // cancelled
    model->exportColors(false, false);
    EXPECT_EQ(dialogs.saveRequests.size(), 1);
    EXPECT_TRUE(dialogs.failures.isEmpty());

    dialogs.chosenPath = settings.dir.path(); // a folder: the failure is reported
    model->exportColors(false, false);
    ASSERT_EQ(dialogs.failures.size(), 1);
    EXPECT_FALSE(dialogs.failures.first().isEmpty());
    EXPECT_EQ(model->colors(), history);

    model->clearHistory();
    model->deleteColor(model->colors().first());
    model->exportColors(true, false);
    model->exportColors(false, true);
    EXPECT_EQ(dialogs.saveRequests.size(), 2) << "no dialog without colours";
    EXPECT_EQ(QDir(settings.dir.path()).entryList({ QStringLiteral("*.txt") }), QStringList());
}

} // namespace
