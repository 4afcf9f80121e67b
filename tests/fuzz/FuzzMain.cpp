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
// Every file of the corpus folder once, so every input that ever crashed is tried again.
int main(int argc, char **argv)
{
    const QDir corpus(argc == 2 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = argc == 2 ? corpus.entryList(QDir::Files, QDir::Name) : QStringList();
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        std::fprintf(stderr, "replaying %s\n", qPrintable(name));
        fuzzOne(file.readAll());
    }
    return names.isEmpty() ? 2 : 0; // a missing or empty corpus folder
}
#endif
