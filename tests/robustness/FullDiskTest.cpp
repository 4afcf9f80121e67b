// SPDX-License-Identifier: GPL-3.0-or-later
// A full or read-only disk under the settings: a pick still copies and stays in the history in
// memory, the file on disk stays as it was, and the next save that can succeed writes every
// colour. (The atomic writer itself is tested with the services.)
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "services/SettingsStore.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype colorsIn(const QByteArray &history)
{
    return decodeColorHistory(history).value_or(QList<PickedColor>()).size();
}

} // namespace

TEST(TinyDisk, PicksStayInMemoryAndTheOldFileUntilASaveCanSucceed)
{
    const QTemporaryDir outer;
    const QString disk = outer.filePath(QStringLiteral("disk"));
    ASSERT_TRUE(QDir().mkpath(disk));
    const auto mount = [&](const char *options) {
        return 0
            == QProcess::execute(QStringLiteral("mount"),
                { QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"), QLatin1String(options),
                    QStringLiteral("vantle-test"), disk });
    };
    if (!mount("size=64k,mode=700"))
        GTEST_SKIP() << "mounting a tiny tmpfs needs root (and CAP_SYS_ADMIN in a container)";
    const std::shared_ptr<void> unmount(nullptr, [&](void *) {
        QProcess::execute(QStringLiteral("umount"), { QStringLiteral("-l"), disk });
    });
    const QString filler = disk + QStringLiteral("/filler");
    const auto remount = [&](const char *options) { ASSERT_TRUE(mount(options)); };
    const struct {
        const char *what;
        std::function<void()> refuse, allow;
    } cases[] = {
        { "full",
            [&] { // to the last byte, with a file that can be removed again
                QFile file(filler);
                ASSERT_TRUE(file.open(QIODevice::WriteOnly));
                for (const QByteArray &block : { QByteArray(512, 'x'), QByteArray(1, 'x') })
                    while (file.write(block) == block.size() && file.flush()) { }
            },
            [&] { ASSERT_TRUE(QFile::remove(filler)); } },
        { "read-only", [&] { remount("remount,ro"); }, [&] { remount("remount,rw"); } },
    };
    const QString history = disk + QStringLiteral("/Vantle/colorHistory.json");
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        QFile::remove(history);
        SettingsStore store(disk + QStringLiteral("/Vantle/Vantle.conf"));
        FakeHistoryFacilities f;
        ColorListViewModel model(store, f.sampler, f.clipboard, f.confirmation, f.dialogs);
        const auto pick = [&](double red) {
            model.pickColor();
            f.sampler.finish(red, 0.5, 0.25);
        };
        pick(0.1);
        pick(0.2);
        const QByteArray before = readAll(history);
        ASSERT_EQ(colorsIn(before), 2);

        c.refuse();
        pick(0.3);
        EXPECT_EQ(f.clipboard.texts.size(), 3) << "the pick still copies";
        EXPECT_EQ(model.colors().size(), 3) << "and stays in the history";
        EXPECT_EQ(readAll(history), before) << "the old file stays intact";

        c.allow();
        pick(0.4);
        EXPECT_EQ(colorsIn(readAll(history)), 4)
            << "the next save writes every colour, the one kept in memory too";
    }
}
