// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Checks a downloaded update against the feed's promise: its exact length, and an Ed25519
// signature (pure Ed25519 over the whole file, as made by the maker's signing tool) under the
// public key built into the program. Keys and signatures are base64.
namespace UpdateSignature {

enum class Verdict {
    verified,
    noPublicKey, // this build carries no key (or an unusable one): nothing can be verified
    wrongLength,
    badSignature, // also a signature that is not valid base64 or has the wrong size
    unreadable,
};

Verdict verifyFile(const QString &filePath, qint64 expectedLength, const QString &base64Signature,
    const QString &base64PublicKey);

} // namespace UpdateSignature
