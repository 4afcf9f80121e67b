// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/UpdateSigning.h"

#include <sodium.h>

namespace UpdateSigning {

KeyPair makeKeyPair()
{
    if (sodium_init() < 0)
        return {};
    unsigned char publicKey[crypto_sign_PUBLICKEYBYTES];
    unsigned char secretKey[crypto_sign_SECRETKEYBYTES];
    crypto_sign_keypair(publicKey, secretKey);
    return { QString::fromLatin1(
                 QByteArray(reinterpret_cast<const char *>(publicKey), sizeof publicKey).toBase64()),
        QByteArray(reinterpret_cast<const char *>(secretKey), sizeof secretKey) };
}

QString sign(const QByteArray &content, const KeyPair &keys)
{
    unsigned char signature[crypto_sign_BYTES];
    crypto_sign_detached(signature, nullptr, reinterpret_cast<const unsigned char *>(content.constData()),
        static_cast<unsigned long long>(content.size()),
        reinterpret_cast<const unsigned char *>(keys.secretKey.constData()));
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(signature), sizeof signature).toBase64());
}

QByteArray someInstaller(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 2166136261u;
    for (int i = 0; i < size; ++i) {
        state = state * 16777619u ^ quint32(i);
        bytes[i] = char(state >> 24);
    }
    return bytes;
}

} // namespace UpdateSigning
