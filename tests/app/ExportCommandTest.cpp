// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "history/PaletteExport.h"
#include "model/ColorHistoryCodec.h"
#include "services/PreferenceKeys.h"
#include "support/TempSettings.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

struct CommandRun {
    int status;
    QString out, err;
};

CommandRun runExport(const QStringList &args, SettingsStore &store)
{
    CommandRun run;
    QTextStream out(&run.out), err(&run.err);
    CommandContext context { out, err, store };
    run.status = runExportCommand(args, context);
    out.flush();
    err.flush();
    return run;
}

class ExportCommandTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        PickedColor sunset = PickedColor::fromSample(1.0, 0.42, 0.21, 1.0);
        sunset.name = QStringLiteral("Sun/set");
        sunset.isPinned = true;
        history = { PickedColor::fromSample(0.2, 0.4, 0.8, 1.0), sunset };
        t.store->setData(PreferenceKeys::colorHistory, *encodeColorHistory(history));
    }
    QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }

    TempSettings t;
    QList<PickedColor> history;
};

TEST_F(ExportCommandTest, PrintsTheStoredHistoryInEitherLayout)
{
    t.store->setString(PreferenceKeys::colorFormat, QStringLiteral("HSL"));
    struct Case {
        QStringList args;
        QByteArray expected;
    };
    const Case cases[] = {
        { {}, "hsl(220, 60%, 50%)\nSun/set: hsl(16, 100%, 61%)\n" },
        { { QStringLiteral("--pinned") }, "Sun/set: hsl(16, 100%, 61%)\n" },
        { { QStringLiteral("--json") }, exportJSON(history) + '\n' },
        { { QStringLiteral("-j"), QStringLiteral("-p") }, exportJSON({ history.at(1) }) + '\n' },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.args.join(u' ').toStdString());
        const CommandRun run = runExport(c.args, *t.store);
        EXPECT_EQ(run.status, ExitStatus::ok);
        EXPECT_EQ(run.out.toUtf8(), c.expected);
        EXPECT_EQ(run.err, QString());
    }
    EXPECT_TRUE(runExport({ QStringLiteral("--json") }, *t.store).out.contains(u"\"name\" : \"Sun\\/set\""));
}

TEST_F(ExportCommandTest, WritesTheFileExactlyAndAtomically)
{
    const QString path = t.dir.filePath(QStringLiteral("palette.json"));
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(10000, ' '));
    old.close();
    for (const QStringList &args : { QStringList { QStringLiteral("--json"), QStringLiteral("-o"), path },
             QStringList { QStringLiteral("--output=") + path, QStringLiteral("--json") } }) {
        const CommandRun run = runExport(args, *t.store);
        EXPECT_EQ(run.status, ExitStatus::ok);
        EXPECT_EQ(run.out, QString());
        EXPECT_EQ(read(path), exportJSON(history));
    }
}

TEST_F(ExportCommandTest, UnwritableFileFailsWithTheReason)
{
    const QString folder = t.dir.filePath(QStringLiteral("existing"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/inside")));
    for (const QString &path : { folder, t.dir.filePath(QStringLiteral("missing/palette.txt")) }) {
        SCOPED_TRACE(path.toStdString());
        const CommandRun run = runExport({ QStringLiteral("-o"), path }, *t.store);
        EXPECT_EQ(run.status, ExitStatus::failure);
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("vantle export: cannot write \"%1\": ").arg(path)))
            << run.err.toStdString();
        EXPECT_GT(run.err.size(), QStringLiteral("vantle export: cannot write \"%1\": \n").arg(path).size());
    }
    EXPECT_TRUE(QDir(folder + QStringLiteral("/inside")).exists());
}

TEST_F(ExportCommandTest, RefusesWhatItCannotDo)
{
    EXPECT_EQ(runExport({ QStringLiteral("--pdf") }, *t.store).status, ExitStatus::usage);
    EXPECT_EQ(runExport({ QStringLiteral("-o") }, *t.store).status, ExitStatus::usage);

    t.store->setData(PreferenceKeys::colorHistory, "{not json");
    const CommandRun run = runExport({ QStringLiteral("--json") }, *t.store);
    EXPECT_EQ(run.status, ExitStatus::failure);
    EXPECT_EQ(run.out, QString());
    EXPECT_TRUE(run.err.contains(t.store->dataFilePath(PreferenceKeys::colorHistory))) << qPrintable(run.err);

    t.store->removeObject(PreferenceKeys::colorHistory);
    EXPECT_EQ(runExport({ QStringLiteral("--json") }, *t.store).out, u"[\n\n]\n");
    EXPECT_EQ(runExport({}, *t.store).out, QString());
}

} // namespace
