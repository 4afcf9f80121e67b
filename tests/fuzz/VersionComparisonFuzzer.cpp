// SPDX-License-Identifier: GPL-3.0-or-later
// Version comparison is an order: reflexive, antisymmetric and transitive on any three
// versions (the input's first three lines), whatever the feed writes.
#include "FuzzCheck.h"

#include "services/VersionComparison.h"

#include <QStringList>

void fuzzOne(const QByteArray &input)
{
    QStringList v = QString::fromUtf8(input).split(QLatin1Char('\n'));
    while (v.size() < 3)
        v << QString();
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    const int ab = sign(compareVersions(v[0], v[1])), bc = sign(compareVersions(v[1], v[2])),
              ac = sign(compareVersions(v[0], v[2]));
    FUZZ_CHECK(compareVersions(v[0], v[0]) == 0);
    FUZZ_CHECK(ab == -sign(compareVersions(v[1], v[0])) && bc == -sign(compareVersions(v[2], v[1]))
        && ac == -sign(compareVersions(v[2], v[0])));
    // Transitivity, equality included: a <= b <= c gives a <= c, strict when either step is;
    // the same the other way.
    if (ab == bc || ab == 0 || bc == 0)
        FUZZ_CHECK(ac == (ab != 0 ? ab : bc));
}
