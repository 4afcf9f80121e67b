// SPDX-License-Identifier: GPL-3.0-or-later
// Test helper, not a test: saves the colour history in a loop the way the program does (read
// the stored history, add a colour, write it back through the settings store) and reports on
// standard output every save the store said reached the disk:
//   ready
//   saved <UUID>
// The crash-safety test kills it with SIGKILL at random moments.
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s SETTINGS_FILE\n", argv[0]);
        return 2;
    }
    SettingsStore store(QString::fromLocal8Bit(argv[1]));
    QList<PickedColor> colors;
    if (const std::optional<QByteArray> stored = store.dataForKey(PreferenceKeys::colorHistory)) {
        const std::optional<QList<PickedColor>> decoded = decodeColorHistory(*stored);
        if (!decoded) {
            std::fprintf(stderr, "the stored history cannot be read\n");
            return 1;
        }
        colors = *decoded;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    for (int i = 0; i < 100000; ++i) {
        colors.append(PickedColor::fromSample((i % 256) / 255.0, 0.5, 1.0 - (i % 256) / 255.0, 1.0));
        if (store.setData(PreferenceKeys::colorHistory, *encodeColorHistory(colors))) {
            std::printf("saved %s\n",
                colors.last().id.toString(QUuid::WithoutBraces).toUpper().toLatin1().constData());
            std::fflush(stdout);
        }
    }
    return 0;
}
