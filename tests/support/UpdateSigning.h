// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <sodium.h>

// The maker's side of updates, for tests: fresh Ed25519 keys, detached signatures (base64 as in
// the feed and the build) and feeds.
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

inline QByteArray appcast(const QByteArray &items)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)"
        + items + "</channel></rss>";
}

inline QByteArray appcastItem(const QByteArray &version, QByteArray url = {}, qint64 length = 1234,
    const QByteArray &signature = "c2ln")
{
    url = url.isEmpty() ? "https://example.org/Vantle-" + version + ".tar.gz" : url;
    return "<item><title>Version " + version + "</title><sparkle:version>" + version
        + "</sparkle:version><description><![CDATA[<p>Notes " + version
        + "</p>]]></description><enclosure url=\"" + url + "\" length=\"" + QByteArray::number(length)
        + "\" sparkle:edSignature=\"" + signature + "\"/></item>";
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
