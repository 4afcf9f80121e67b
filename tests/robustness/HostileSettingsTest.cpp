// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the settings file holds (random bytes, invalid UTF-8, 100 MB, a history nested
// 200,000 levels deep, numbers JSON cannot hold, values of the wrong type), the program opens
// it, an unreadable history goes aside, picks work and are saved, and `vantle export` answers.
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

HostileFile hostileFile(int index)
{
    if (index == 5) {
        QByteArray huge = "[General]\n" + historyLine(oneColor) + "padding=";
        huge += QByteArray(100 * 1024 * 1024, 'x');
        huge += "\ncolorFormat=HSL\n";
        return { "a 100 MB file", huge, 0, false, true, true };
    }
    const QByteArray nested = QByteArray(200000, '[') + QByteArray(200000, ']');
    const QList<HostileFile> files = {
        { "random bytes", randomBytes(64 * 1024, 13), 0, false, true },
        { "invalid UTF-8", "[General]\n\xff\xfe=\xc3\x28\ncolorFormat=\xed\xa0\x80\n" + historyLine(oneColor),
            1, false, true },
        { "history nested 200,000 deep", "[General]\n" + historyLine(nested), 0, true, false },
        { "1e999 in the history",
            "[General]\n" + historyLine(QByteArray(oneColor).replace("\"red\":1", "\"red\":1e999")), 0, true,
            false },
        { "values of the wrong type",
            "[General]\ncolorHistory=12\nhistoryLimit=@ByteArray(x)\ncolorFormat=@Variant(\\0\\0\\0\\x7f)\n"
            "showColorDot=[1,2]\npickKeyCode=1e999\npickModifiers=nan\n",
            0, false, true },
    };
    return files.at(index);
}

class HostileSettingsTest : public ::testing::TestWithParam<int> { };

TEST_P(HostileSettingsTest, OpensPicksSavesAndExports)
{
    const HostileFile hostile = hostileFile(GetParam());
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("Vantle.conf"));
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(hostile.content), hostile.content.size());
    }

    SettingsStore store(path);
    FakeHistoryFacilities f;
    ColorListViewModel model(store, f.sampler, f.clipboard, f.confirmation, f.dialogs);
    EXPECT_EQ(model.colors().size(), hostile.colorsKept);
    const QStringList aside
        = QDir(dir.path()).entryList({ QStringLiteral("colorHistory.json.unreadable-*") }, QDir::Files);
    EXPECT_EQ(aside.size(), hostile.historyKeptAside ? 1 : 0);
    const QStringList fileAside
        = QDir(dir.path()).entryList({ QStringLiteral("Vantle.conf.unreadable-*") }, QDir::Files);
    if (hostile.fileKeptAside) {
        ASSERT_EQ(fileAside.size(), 1);
        EXPECT_EQ(QFileInfo(dir.filePath(fileAside[0])).size(), hostile.content.size());
    }

    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    CommandContext context { outStream, errStream, store };
    const int status = runExportCommand({}, context);
    if (hostile.exportSucceeds) {
        EXPECT_EQ(status, ExitStatus::ok) << qPrintable(err);
    } else {
        EXPECT_EQ(status, ExitStatus::failure);
        EXPECT_TRUE(err.contains(QStringLiteral("cannot be read"))) << qPrintable(err);
    }

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

INSTANTIATE_TEST_SUITE_P(Files, HostileSettingsTest, ::testing::Range(0, 6));

} // namespace
