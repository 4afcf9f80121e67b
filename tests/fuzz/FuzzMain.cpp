// SPDX-License-Identifier: GPL-3.0-or-later
#include "FuzzCheck.h"

#include <QDir>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzOne(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}

#ifdef VANTLE_CORPUS_REPLAY
// Every file of the corpus folder once, in name order, so every input that ever crashed keeps
// being tried without libFuzzer.
int main(int argc, char **argv)
{
    const QDir corpus(argc == 2 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = argc == 2 ? corpus.entryList(QDir::Files, QDir::Name) : QStringList();
    if (names.isEmpty()) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER (with at least one file)\n", argv[0]);
        return 2;
    }
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        std::fprintf(stderr, "replaying %s\n", qPrintable(name));
        fuzzOne(file.readAll());
    }
    std::printf("%lld inputs replayed\n", static_cast<long long>(names.size()));
    return 0;
}
#endif
