// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>

// What the updater knows about the program it updates: the build's identity and feed, the key
// that signs its releases, where downloads go and how long the network may keep it waiting.
struct UpdateBundle {
    QString name;
    QString version;
    QString feedUrl; // empty: the program has no feed and never asks the network
    QString publicKey; // base64 Ed25519 key; empty: no download can be verified
    QString downloadFolder;
    // A transfer that receives nothing for this long is given up.
    std::chrono::milliseconds transferTimeout { std::chrono::seconds(30) };
    // Between background checks.
    std::chrono::milliseconds checkInterval { std::chrono::hours(24) };

    // The values fixed when the program was built; downloads go to the user's download folder.
    static UpdateBundle fromBuildInfo();
};
