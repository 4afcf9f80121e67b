// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

TEST(AtomicFile, WritesWholeFilesOrLeavesTheOldOneAlone)
{
    QTemporaryDir dir;
    QDir(dir.path()).mkdir(QStringLiteral("folder"));
    const QByteArray old(10000, 'x'), content = "Sunset: #FF6B36\n" + QByteArray(1000, '#');
    const struct {
        const char *name;
        bool existing;
        rlim_t sizeLimit; // what the process may write, as on a nearly full disk
        bool written;
    } cases[] = {
        { "new.txt", false, RLIM_INFINITY, true }, { "longer.txt", true, RLIM_INFINITY, true },
        { "folder", false, RLIM_INFINITY, false }, { "missing/new.txt", false, RLIM_INFINITY, false },
        { "full.txt", true, 100, false }, // the refusal shows only when the buffer reaches the disk
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        const QString path = dir.filePath(QString::fromLatin1(c.name));
        QFile file(path);
        if (c.existing) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(old) == old.size());
            file.close();
        }
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit saved;
        getrlimit(RLIMIT_FSIZE, &saved);
        const rlimit limit { c.sizeLimit, saved.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
        const std::optional<QString> failure = writeFileAtomically(path, content);
        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, SIG_DFL);

        EXPECT_EQ(!failure, c.written);
        EXPECT_NE(failure.value_or(QStringLiteral("ok")), QString()) << "a failure says why";
        const QByteArray now
            = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
        EXPECT_EQ(now, c.written ? content : c.existing ? old : "none");
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 3); // no temporary file left
}
