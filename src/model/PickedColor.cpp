#include "model/PickedColor.h"

#include "model/NumberText.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

PickedColor PickedColor::fromSample(double red, double green, double blue, double alpha)
{
    PickedColor color;
    color.id = QUuid::createUuid();
    color.red = red;
    color.green = green;
    color.blue = blue;
    color.alpha = alpha;
    color.timestamp = referenceDateNow();
    return color;
}

double referenceDateNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0 - referenceDateOffset;
}

void appendJsonString(QByteArray &out, const QString &text)
{
    static const char hex[] = "0123456789abcdef";
    const auto appendEscape = [&out](char16_t unit) {
        out.append("\\u");
        for (int shift = 12; shift >= 0; shift -= 4)
            out.append(hex[(unit >> shift) & 15]);
    };
    out.reserve(out.size() + text.size() + 2);
    out.append('"');
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = text[i].unicode();
        switch (c) {
        case '"': out.append("\\\""); break;
        case '\\': out.append("\\\\"); break;
        case '/': out.append("\\/"); break;
        case '\b': out.append("\\b"); break;
        case '\f': out.append("\\f"); break;
        case '\n': out.append("\\n"); break;
        case '\r': out.append("\\r"); break;
        case '\t': out.append("\\t"); break;
        default:
            if (c < 0x20) {
                appendEscape(c);
            } else if (c < 0x80) {
                out.append(char(c));
            } else if (QChar::isHighSurrogate(c) && i + 1 < size && text[i + 1].isLowSurrogate()) {
                out.append(QStringView(text).mid(i, 2).toUtf8());
                ++i;
            } else if (QChar::isSurrogate(c)) {
                // Half of a pair alone has no UTF-8 form (it would turn into U+FFFD); the escape
                // keeps it, so a name reads back exactly as it was saved.
                appendEscape(c);
            } else if (c == 0xFEFF && i == 0) {
                // Raw, a leading U+FEFF is taken for a byte-order mark and dropped on reading.
                appendEscape(c);
            } else {
                out.append(QStringView(text).mid(i, 1).toUtf8());
            }
        }
    }
    out.append('"');
}

namespace {

bool appendNumber(QByteArray &out, double value)
{
    if (!std::isfinite(value))
        return false;
    out.append(NumberText::shortest(value));
    return true;
}

bool isCanonicalUuidText(const QString &text)
{
    if (text.size() != 36)
        return false;
    for (int i = 0; i < 36; ++i) {
        const QChar c = text[i];
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (c != u'-')
                return false;
        } else if (!(c.isDigit() || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F'))) {
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

std::optional<PickedColor> decodeRecord(const QJsonValue &value)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    PickedColor color;

    const QJsonValue id = object.value(QLatin1StringView("id"));
    if (!id.isString() || !isCanonicalUuidText(id.toString()))
        return std::nullopt;
    color.id = QUuid::fromString(id.toString());

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

} // namespace

std::optional<QByteArray> encodeColorHistory(const QList<PickedColor> &colors)
{
    QByteArray out;
    out.reserve(colors.size() * 160 + 2);
    out.append('[');
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const PickedColor &c = colors[i];
        if (i > 0)
            out.append(',');
        out.append("{\"id\":\"");
        out.append(c.id.toString(QUuid::WithoutBraces).toUpper().toLatin1());
        out.append("\",\"red\":");
        bool ok = appendNumber(out, c.red);
        out.append(",\"green\":");
        ok = appendNumber(out, c.green) && ok;
        out.append(",\"blue\":");
        ok = appendNumber(out, c.blue) && ok;
        out.append(",\"alpha\":");
        ok = appendNumber(out, c.alpha) && ok;
        if (c.name) {
            out.append(",\"name\":");
            appendJsonString(out, *c.name);
        }
        out.append(c.isPinned ? ",\"isPinned\":true" : ",\"isPinned\":false");
        out.append(",\"timestamp\":");
        ok = appendNumber(out, c.timestamp) && ok;
        out.append('}');
        if (!ok)
            return std::nullopt;
    }
    out.append(']');
    return out;
}

std::optional<QList<PickedColor>> decodeColorHistory(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    QList<PickedColor> colors;
    colors.reserve(array.size());
    for (const QJsonValue &value : array) {
        auto color = decodeRecord(value);
        if (!color)
            return std::nullopt;
        colors.append(std::move(*color));
    }
    return colors;
}
