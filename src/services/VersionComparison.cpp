// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/VersionComparison.h"

#include <QStringList>
#include <QStringView>

namespace {

struct VersionPart {
    quint64 number = 0;
    QStringView suffix;
};

// Only 0-9 count as digits: other scripts' digits (isDigit() says yes to "٣") are text, or
// a suffix starting with one would never be consumed.
bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

VersionPart splitPart(QStringView text)
{
    VersionPart part;
    qsizetype i = 0;
    // Absurdly long digit runs saturate instead of wrapping around.
    for (; i < text.size() && isAsciiDigit(text[i]); ++i) {
        const quint64 digit = text[i].unicode() - u'0';
        part.number = part.number > (UINT64_MAX - digit) / 10 ? UINT64_MAX : part.number * 10 + digit;
    }
    part.suffix = text.mid(i);
    return part;
}

// "b2" before "b10": runs of digits compare as numbers, the rest as text.
int compareSuffixes(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        if (isAsciiDigit(a.front()) && isAsciiDigit(b.front())) {
            const VersionPart l = splitPart(a);
            const VersionPart r = splitPart(b);
            if (l.number != r.number)
                return l.number < r.number ? -1 : 1;
            a = l.suffix;
            b = r.suffix;
            continue;
        }
        if (a.front() != b.front())
            return a.front() < b.front() ? -1 : 1;
        a = a.mid(1);
        b = b.mid(1);
    }
    return a.isEmpty() == b.isEmpty() ? 0 : (a.isEmpty() ? -1 : 1);
}

} // namespace

int compareVersions(const QString &a, const QString &b)
{
    const QList<QStringView> left = QStringView(a).trimmed().split(u'.');
    const QList<QStringView> right = QStringView(b).trimmed().split(u'.');
    const qsizetype count = std::max(left.size(), right.size());
    for (qsizetype i = 0; i < count; ++i) {
        const VersionPart l = i < left.size() ? splitPart(left[i]) : VersionPart {};
        const VersionPart r = i < right.size() ? splitPart(right[i]) : VersionPart {};
        if (l.number != r.number)
            return l.number < r.number ? -1 : 1;
        if (l.suffix.isEmpty() != r.suffix.isEmpty())
            return l.suffix.isEmpty() ? 1 : -1;
        if (const int c = compareSuffixes(l.suffix, r.suffix); c != 0)
            return c;
    }
    return 0;
}
