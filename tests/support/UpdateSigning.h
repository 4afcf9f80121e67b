// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// The maker's side of update signing, for tests: fresh Ed25519 keys and detached signatures,
// all base64 as they appear in the feed and the build.
namespace UpdateSigning {

struct KeyPair {
    QString publicKey;
    QByteArray secretKey;
};

KeyPair makeKeyPair();
QString sign(const QByteArray &content, const KeyPair &keys);
// Deterministic bytes that look like an archive, `size` long.
QByteArray someInstaller(int size);

} // namespace UpdateSigning
