// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateSignature.h"

#include "support/UpdateSigning.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using UpdateSignature::Verdict;

TEST(UpdateSignature, OnlyTheExactSignedFilePasses)
{
    const UpdateSigning::KeyPair keys = UpdateSigning::makeKeyPair();
    const UpdateSigning::KeyPair otherKeys = UpdateSigning::makeKeyPair();
    const QByteArray content = UpdateSigning::someInstaller(70000);
    const QString signature = UpdateSigning::sign(content, keys);

    QByteArray flipped = content;
    flipped[500] = char(flipped[500] ^ 1);

    struct Case {
        const char *what;
        QByteArray onDisk;
        qint64 announcedLength;
        QString signature;
        QString publicKey;
        Verdict expected;
    };
    const Case cases[] = {
        { "good", content, content.size(), signature, keys.publicKey, Verdict::verified },
        { "one bit changed", flipped, content.size(), signature, keys.publicKey, Verdict::badSignature },
        { "truncated", content.left(60000), content.size(), signature, keys.publicKey, Verdict::wrongLength },
        { "truncated, length to match", content.left(60000), 60000, signature, keys.publicKey,
            Verdict::badSignature },
        { "longer than announced", content + "x", content.size(), signature, keys.publicKey,
            Verdict::wrongLength },
        { "signed by someone else", content, content.size(), UpdateSigning::sign(content, otherKeys),
            keys.publicKey, Verdict::badSignature },
        { "signature too short", content, content.size(), signature.left(40), keys.publicKey,
            Verdict::badSignature },
        { "no key built in", content, content.size(), signature, QString(), Verdict::noPublicKey },
    };
    QTemporaryDir dir;
    for (const Case &c : cases) {
        const QString path = dir.filePath(QString::fromLatin1(c.what));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.onDisk);
        file.close();
        EXPECT_EQ(UpdateSignature::verifyFile(path, c.announcedLength, c.signature, c.publicKey), c.expected)
            << c.what;
    }
}
