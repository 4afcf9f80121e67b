// SPDX-License-Identifier: GPL-3.0-or-later
// The plain-program form of a fuzz target: runs every file of the given folders (or the given
// files) through the target once, in name order, so a corpus replays without libFuzzer.
#include "FuzzCheck.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) __attribute__((weak));

int main(int argc, char **argv)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        const QString path = QFile::decodeName(argv[i]);
        if (QFileInfo(path).isDir()) {
            const QDir dir(path);
            for (const QString &name : dir.entryList(QDir::Files, QDir::Name))
                files << dir.filePath(name);
        } else {
            files << path;
        }
    }
    if (files.isEmpty()) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER_OR_FILE...\n", argv[0]);
        return 2;
    }
    for (const QString &path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
            return 1;
        }
        const QByteArray data = file.readAll();
        std::fprintf(
            stderr, "replaying %s (%lld bytes)\n", qPrintable(path), static_cast<long long>(data.size()));
        LLVMFuzzerTestOneInput(
            reinterpret_cast<const uint8_t *>(data.constData()), static_cast<size_t>(data.size()));
    }
    std::printf("%lld inputs replayed\n", static_cast<long long>(files.size()));
    return 0;
}
