// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the settings file holds, the program opens it, an unreadable history goes aside,
// picks work and are saved, and `vantle export` answers.
#include "app/CommandLine.h"
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

namespace {

const QByteArray oneColor
    = R"([{"id":"0A1B2C3D-4E5F-4061-8293-A4B5C6D7E8F9","red":1,"green":0.5,"blue":0,"alpha":1,)"
      R"("isPinned":true,"timestamp":785001234}])";

// A history value in the file as QSettings writes data: @ByteArray(...) with quotes escaped.
QByteArray historyLine(const QByteArray &json)
{
    QByteArray escaped = json;
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    return "colorHistory=\"@ByteArray(" + escaped + ")\"\n";
}

QByteArray randomBytes(qsizetype size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

struct HostileFile {
    const char *name;
    QByteArray content;
    int colorsKept; // colours the model starts with
    bool historyKeptAside; // an unreadable history value is copied aside
    bool exportSucceeds; // `vantle export` prints a palette (else it says it cannot read it)
    bool fileKeptAside = false; // the whole file moved aside unread
};

// Built on demand: the 100 MB file is not held for every case.
HostileFile hostileFile(int index)
{
    switch (index) {
    case 0:
        return { "random bytes", randomBytes(64 * 1024, 13), 0, false, true };
    case 1:
        return { "invalid UTF-8",
            "[General]\n\xff\xfe=\xc3\x28\ncolorFormat=\xed\xa0\x80\n" + historyLine(oneColor), 1, false,
            true };
    case 2: // numbers JSON cannot hold go the same way (PickedColorTest)
        return { "history nested 200,000 deep",
            "[General]\n" + historyLine(QByteArray(200000, '[') + QByteArray(200000, ']')), 0, true, false };
    case 3:
        return { "values of the wrong type",
            "[General]\ncolorHistory=12\nhistoryLimit=@ByteArray(x)\ncolorFormat=@Variant(\\0\\0\\0\\x7f)\n"
            "showColorDot=[1,2]\npickKeyCode=1e999\npickModifiers=nan\n",
            0, false, true };
    }
    return { "a 100 MB file",
        "[General]\n" + historyLine(oneColor) + "padding=" + QByteArray(100 * 1024 * 1024, 'x')
            + "\ncolorFormat=HSL\n",
        0, false, true, true };
}

class HostileSettingsTest : public ::testing::TestWithParam<int> { };

TEST_P(HostileSettingsTest, OpensPicksSavesAndExports)
{
    const HostileFile hostile = hostileFile(GetParam());
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Vantle.conf"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(hostile.content) == hostile.content.size());
    file.close();

    SettingsStore store(path);
    FakeHistoryFacilities f;
    ColorListViewModel model(store, f.sampler, f.clipboard, f.confirmation, f.dialogs);
    EXPECT_EQ(model.colors().size(), hostile.colorsKept);
    const auto aside = [&](const char *name) {
        return QDir(dir.path())
            .entryList({ QLatin1String(name) + QStringLiteral(".unreadable-*") }, QDir::Files);
    };
    EXPECT_EQ(aside("colorHistory.json").size(), hostile.historyKeptAside ? 1 : 0);
    if (hostile.fileKeptAside) {
        ASSERT_EQ(aside("Vantle.conf").size(), 1);
        EXPECT_EQ(QFileInfo(dir.filePath(aside("Vantle.conf")[0])).size(), hostile.content.size());
    }

    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    CommandContext context { outStream, errStream, store };
    const int status = runExportCommand({}, context);
    EXPECT_EQ(status, hostile.exportSucceeds ? ExitStatus::ok : ExitStatus::failure) << qPrintable(err);
    EXPECT_EQ(err.contains(QStringLiteral("cannot be read")), !hostile.exportSucceeds) << qPrintable(err);

    model.pickColor();
    f.sampler.finish(0.2, 0.4, 0.6);
    ASSERT_EQ(model.colors().size(), hostile.colorsKept + 1);
    EXPECT_EQ(f.clipboard.texts.size(), 1);
    // The next launch finds the new colour on disk (the history is read from its file anew).
    SettingsStore next(path);
    const auto stored
        = decodeColorHistory(next.dataForKey(PreferenceKeys::colorHistory).value_or(QByteArray()));
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->size(), hostile.colorsKept + 1);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileSettingsTest, ::testing::Range(0, 5));

} // namespace
