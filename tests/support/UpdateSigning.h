// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <sodium.h>

// The maker's side of update signing, for tests: fresh Ed25519 keys and detached signatures,
// all base64 as they appear in the feed and the build.
namespace UpdateSigning {

struct KeyPair {
    QString publicKey;
    QByteArray secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, Qt::Uninitialized);
};

inline KeyPair makeKeyPair()
{
    KeyPair keys;
    QByteArray publicKey(crypto_sign_PUBLICKEYBYTES, Qt::Uninitialized);
    if (sodium_init() < 0)
        return {};
    crypto_sign_keypair(reinterpret_cast<unsigned char *>(publicKey.data()),
        reinterpret_cast<unsigned char *>(keys.secretKey.data()));
    keys.publicKey = QString::fromLatin1(publicKey.toBase64());
    return keys;
}

inline QString sign(const QByteArray &content, const KeyPair &keys)
{
    QByteArray signature(crypto_sign_BYTES, Qt::Uninitialized);
    crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
        reinterpret_cast<const unsigned char *>(content.constData()),
        static_cast<unsigned long long>(content.size()),
        reinterpret_cast<const unsigned char *>(keys.secretKey.constData()));
    return QString::fromLatin1(signature.toBase64());
}

// Bytes that vary like an archive's, `size` long.
inline QByteArray someInstaller(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 2654435761u) >> 24);
    return bytes;
}

} // namespace UpdateSigning
