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

void fuzzOne(const QByteArray &json)
{
    const std::optional<QList<PickedColor>> colors = decodeColorHistory(json);
    if (!colors)
        return;
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
    FUZZ_CHECK(readBack == colors && encodeColorHistory(*readBack) == written);
    // Equal numbers down to the sign of zero, which == cannot tell apart.
    for (qsizetype i = 0; i < colors->size(); ++i) {
        for (auto member : { &PickedColor::red, &PickedColor::green, &PickedColor::blue, &PickedColor::alpha,
                 &PickedColor::timestamp })
            FUZZ_CHECK(std::signbit((*readBack)[i].*member) == std::signbit((*colors)[i].*member));
    }
}
