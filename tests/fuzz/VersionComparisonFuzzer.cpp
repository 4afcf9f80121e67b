// SPDX-License-Identifier: GPL-3.0-or-later
// Version comparison is an order: reflexive, antisymmetric and transitive on any three
// versions (the input's first three lines), whatever the feed writes.
#include "FuzzCheck.h"

#include "services/VersionComparison.h"

#include <QStringList>

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text
        = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QStringList versions = text.split(QLatin1Char('\n'));
    while (versions.size() < 3)
        versions << QString();
    const QString &a = versions[0];
    const QString &b = versions[1];
    const QString &c = versions[2];

    FUZZ_CHECK(compareVersions(a, a) == 0);
    const int ab = sign(compareVersions(a, b));
    const int bc = sign(compareVersions(b, c));
    const int ac = sign(compareVersions(a, c));
    FUZZ_CHECK(ab == -sign(compareVersions(b, a)));
    FUZZ_CHECK(bc == -sign(compareVersions(c, b)));
    FUZZ_CHECK(ac == -sign(compareVersions(c, a)));
    // Transitivity, equality included: a <= b <= c gives a <= c, strict when either step is.
    if (ab <= 0 && bc <= 0) {
        FUZZ_CHECK(ac <= 0);
        if (ab < 0 || bc < 0)
            FUZZ_CHECK(ac < 0);
    }
    if (ab >= 0 && bc >= 0) {
        FUZZ_CHECK(ac >= 0);
        if (ab > 0 || bc > 0)
            FUZZ_CHECK(ac > 0);
    }
    return 0;
}
