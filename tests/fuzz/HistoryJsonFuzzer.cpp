// SPDX-License-Identifier: GPL-3.0-or-later
// The stored colour history as read from its file. Whatever decodes must write back and read
// again to the very same records and the very same bytes, and every id read must be the id
// stored (a digit beyond ASCII once read as the null id, shared by every record written so).
#include "FuzzCheck.h"

#include "model/ColorHistoryCodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace {

// Equal records, and equal numbers down to the sign of zero, which == cannot tell apart.
bool isSameHistory(const QList<PickedColor> &a, const QList<PickedColor> &b)
{
    if (a != b)
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        for (auto member : { &PickedColor::red, &PickedColor::green, &PickedColor::blue, &PickedColor::alpha,
                 &PickedColor::timestamp }) {
            if (std::signbit(a[i].*member) != std::signbit(b[i].*member))
                return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<QList<PickedColor>> colors = decodeColorHistory(json);
    if (!colors)
        return 0;
    // Each id as it stands in the document, in order: the id read must be that very text.
    const QJsonArray stored = QJsonDocument::fromJson(json).array();
    FUZZ_CHECK(stored.size() == colors->size());
    for (qsizetype i = 0; i < colors->size(); ++i) {
        const QString text = stored[i].toObject().value(QLatin1StringView("id")).toString();
        FUZZ_CHECK((*colors)[i].id.toString(QUuid::WithoutBraces) == text.toLower());
    }
    // Decoding admits only finite numbers, so every decoded history can be written.
    const std::optional<QByteArray> written = encodeColorHistory(*colors);
    FUZZ_CHECK(written.has_value());
    const std::optional<QList<PickedColor>> readBack = decodeColorHistory(*written);
    FUZZ_CHECK(readBack.has_value());
    FUZZ_CHECK(isSameHistory(*readBack, *colors));
    FUZZ_CHECK(encodeColorHistory(*readBack) == written);
    return 0;
}
