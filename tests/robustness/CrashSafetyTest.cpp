// SPDX-License-Identifier: GPL-3.0-or-later
// A save cut short by SIGKILL loses nothing that was reported saved, never leaves a
// half-written settings file, and never leaves a lock behind that stops the next start.
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <signal.h>

namespace {

// Preferences a user has set, which every save must carry along unchanged.
const QList<std::pair<QString, QString>> presetValues
    = { { PreferenceKeys::colorFormat, QStringLiteral("HSL") },
          { PreferenceKeys::pickKeyChar, QStringLiteral("C") } };

void collectReports(QProcess &helper, QSet<QString> &saved, bool &ready)
{
    while (helper.canReadLine()) {
        const QByteArray line = helper.readLine().trimmed();
        if (line == "ready")
            ready = true;
        else if (line.startsWith("saved "))
            saved.insert(QString::fromLatin1(line.mid(6)));
    }
}

} // namespace

TEST(CrashSafety, KilledSavesLoseNoReportedColourAndLeaveNoStaleLock)
{
    // A kill leaves the kernel's page cache alone, so a memory-backed folder shows the same
    // file states as a disk, without each save waiting for the disk's flush.
    const bool inMemory = QFileInfo(QStringLiteral("/dev/shm")).isWritable();
    QTemporaryDir dir(inMemory ? QStringLiteral("/dev/shm/vantle-crash-XXXXXX") : QString());
    const QString path = dir.filePath(QStringLiteral("Vantle.conf"));
    for (const auto &[key, value] : presetValues)
        ASSERT_TRUE(SettingsStore(path).setString(key, value));

    QSet<QString> reported;
    int killsDuringSaves = 0;
    qint64 slowestWriteMs = 0;
    // By default hundreds of kills in a few seconds, even on a busy machine.
    const int wanted = qEnvironmentVariableIntValue("VANTLE_CRASH_KILLS");
    const int kills = wanted > 0 ? wanted : 200;
    for (int round = 0; round < kills; ++round) {
        SCOPED_TRACE(round);
        QProcess helper;
        helper.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        helper.start(QStringLiteral(VANTLE_HISTORY_SAVER), { path });
        ASSERT_TRUE(helper.waitForStarted(10000)) << qPrintable(helper.errorString());

        // One kill in four may land while the helper starts and reads; the rest land after 0 to
        // 2 completed saves of this round, at a random moment of the save that follows.
        bool ready = false;
        const bool duringStartup = QRandomGenerator::global()->bounded(4) == 0;
        if (!duringStartup) {
            const qsizetype wanted = reported.size() + QRandomGenerator::global()->bounded(3);
            while ((!ready || reported.size() < wanted) && helper.waitForReadyRead(30000))
                collectReports(helper, reported, ready);
            ASSERT_TRUE(ready && reported.size() >= wanted) << "the helper stopped (stale lock?)";
            ++killsDuringSaves;
        }
        QThread::usleep(QRandomGenerator::global()->bounded(duringStartup ? 30000 : 15000));
        ASSERT_EQ(::kill(static_cast<pid_t>(helper.processId()), SIGKILL), 0);
        ASSERT_TRUE(helper.waitForFinished(10000));
        collectReports(helper, reported, ready); // a line cut short by the kill is no completed save
        // The file as the next launch finds it: whole, with every preference and every colour
        // a completed save reported.
        QSettings raw(path, QSettings::IniFormat);
        raw.allKeys();
        ASSERT_EQ(raw.status(), QSettings::NoError);
        SettingsStore store(path);
        for (const auto &[key, value] : presetValues)
            ASSERT_EQ(store.stringForKey(key), value) << qPrintable(key);
        const std::optional<QList<PickedColor>> colors
            = decodeColorHistory(store.dataForKey(PreferenceKeys::colorHistory).value_or("[]"));
        ASSERT_TRUE(colors.has_value()) << "the stored history is damaged";
        QSet<QString> stored;
        for (const PickedColor &color : *colors)
            stored.insert(color.id.toString(QUuid::WithoutBraces).toUpper());
        ASSERT_TRUE(stored.contains(reported)) << "a colour reported saved was lost";

        // The next start can write: no lock of the killed helper stands in the way. (A value
        // of its own each round: one the file already holds is not written at all.)
        QElapsedTimer writing;
        writing.start();
        ASSERT_TRUE(store.setInteger(PreferenceKeys::popoverKeyCode, round));
        slowestWriteMs = std::max(slowestWriteMs, writing.elapsed());
        ASSERT_FALSE(QFile::exists(path + QStringLiteral(".lock")));
    }
    // Not a speed measurement: an abandoned lock holds the next save up for 30 seconds.
    EXPECT_LT(slowestWriteMs, 10000) << "a lock left by a killed save held up the next start";
    EXPECT_GT(killsDuringSaves, kills / 2);
    EXPECT_GE(reported.size(), killsDuringSaves / 2) << "too few saves completed for the kills to mean much";
}
