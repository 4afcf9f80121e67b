// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateSignature.h"

#include <QByteArray>
#include <QFile>
#include <optional>

#include <sodium.h>

namespace {

std::optional<QByteArray> decodeBase64(const QString &text, qsizetype expectedSize)
{
    const auto result
        = QByteArray::fromBase64Encoding(text.trimmed().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!result || result.decoded.size() != expectedSize)
        return std::nullopt;
    return result.decoded;
}

} // namespace

namespace UpdateSignature {

Verdict verifyFile(const QString &filePath, qint64 expectedLength, const QString &base64Signature,
    const QString &base64PublicKey)
{
    if (sodium_init() < 0)
        return Verdict::noPublicKey;
    const std::optional<QByteArray> publicKey = decodeBase64(base64PublicKey, crypto_sign_PUBLICKEYBYTES);
    if (!publicKey)
        return Verdict::noPublicKey;

    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return Verdict::unreadable;
    if (file.size() != expectedLength)
        return Verdict::wrongLength;
    const std::optional<QByteArray> signature = decodeBase64(base64Signature, crypto_sign_BYTES);
    if (!signature)
        return Verdict::badSignature;

    // Pure Ed25519 needs the whole message at once; mapping the file avoids a second copy of
    // an installer that may be large.
    static const unsigned char empty = 0;
    const unsigned char *message = &empty;
    if (expectedLength > 0) {
        message = file.map(0, expectedLength);
        if (!message)
            return Verdict::unreadable;
    }
    const int result
        = crypto_sign_verify_detached(reinterpret_cast<const unsigned char *>(signature->constData()),
            message, static_cast<unsigned long long>(expectedLength),
            reinterpret_cast<const unsigned char *>(publicKey->constData()));
    return result == 0 ? Verdict::verified : Verdict::badSignature;
}

} // namespace UpdateSignature
