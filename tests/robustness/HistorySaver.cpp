// SPDX-License-Identifier: GPL-3.0-or-later
// HistorySaver SETTINGS_FILE: saves the colour history in a loop as the program does (read, add
// a colour, write back through the settings store), printing "ready", then "saved <UUID>" for
// each save the store said reached the disk. The crash-safety test kills it at random moments.
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    SettingsStore store(QString::fromLocal8Bit(argv[1]));
    const std::optional<QList<PickedColor>> stored
        = decodeColorHistory(store.dataForKey(PreferenceKeys::colorHistory).value_or("[]"));
    if (!stored)
        return 1; // the test finds the damaged history itself
    QList<PickedColor> colors = *stored;
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
