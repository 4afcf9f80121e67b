// The stored colour history as read from the settings file. The reader must accept exactly the
// documents the QJsonDocument-based reader below accepts, with equal records, since that one
// read every history saved so far (it once also took digits beyond ASCII in an id, as the null
// id; those histories are refused now). Whatever decodes must write back and read again to the
// very same records and the very same bytes.
#include "FuzzCheck.h"

#include "model/PickedColor.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace {

bool isCanonicalUuidText(const QString &text)
{
    if (text.size() != 36)
        return false;
    for (int i = 0; i < 36; ++i) {
        const QChar c = text[i];
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (c != u'-')
                return false;
        } else if (!((c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F'))) {
            return false;
        }
    }
    return true;
}

std::optional<double> finiteNumber(const QJsonObject &object, QLatin1StringView key)
{
    const QJsonValue value = object.value(key);
    if (!value.isDouble())
        return std::nullopt;
    const double d = value.toDouble();
    if (!std::isfinite(d))
        return std::nullopt;
    return d;
}

std::optional<PickedColor> referenceRecord(const QJsonValue &value)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    PickedColor color;

    const QJsonValue id = object.value(QLatin1StringView("id"));
    if (!id.isString() || !isCanonicalUuidText(id.toString()))
        return std::nullopt;
    color.id = QUuid::fromString(id.toString());
    // The id read is the id stored: no other text may stand for it (a digit beyond ASCII would
    // read as the null id, shared by every record written so).
    FUZZ_CHECK(color.id.toString(QUuid::WithoutBraces) == id.toString().toLower());

    const auto red = finiteNumber(object, QLatin1StringView("red"));
    const auto green = finiteNumber(object, QLatin1StringView("green"));
    const auto blue = finiteNumber(object, QLatin1StringView("blue"));
    const auto alpha = finiteNumber(object, QLatin1StringView("alpha"));
    const auto timestamp = finiteNumber(object, QLatin1StringView("timestamp"));
    if (!red || !green || !blue || !alpha || !timestamp)
        return std::nullopt;
    color.red = *red;
    color.green = *green;
    color.blue = *blue;
    color.alpha = *alpha;
    color.timestamp = *timestamp;

    const QJsonValue pinned = object.value(QLatin1StringView("isPinned"));
    if (!pinned.isBool())
        return std::nullopt;
    color.isPinned = pinned.toBool();

    const QJsonValue name = object.value(QLatin1StringView("name"));
    if (name.isString())
        color.name = name.toString();
    else if (!name.isNull() && !name.isUndefined())
        return std::nullopt;
    return color;
}

std::optional<QList<PickedColor>> referenceDecode(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    QList<PickedColor> colors;
    for (const QJsonValue &value : array) {
        auto color = referenceRecord(value);
        if (!color)
            return std::nullopt;
        colors.append(std::move(*color));
    }
    return colors;
}

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
    const std::optional<QList<PickedColor>> reference = referenceDecode(json);
    FUZZ_CHECK(colors.has_value() == reference.has_value());
    if (!colors)
        return 0;
    FUZZ_CHECK(isSameHistory(*colors, *reference));
    // Decoding admits only finite numbers, so every decoded history can be written.
    const std::optional<QByteArray> written = encodeColorHistory(*colors);
    FUZZ_CHECK(written.has_value());
    const std::optional<QList<PickedColor>> readBack = decodeColorHistory(*written);
    FUZZ_CHECK(readBack.has_value());
    FUZZ_CHECK(isSameHistory(*readBack, *colors));
    FUZZ_CHECK(encodeColorHistory(*readBack) == written);
    return 0;
}
