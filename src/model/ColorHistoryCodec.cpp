// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ColorHistoryCodec.h"

#include "model/NumberText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

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
        case '"':
            out.append("\\\"");
            break;
        case '\\':
            out.append("\\\\");
            break;
        case '/':
            out.append("\\/");
            break;
        case '\b':
            out.append("\\b");
            break;
        case '\f':
            out.append("\\f");
            break;
        case '\n':
            out.append("\\n");
            break;
        case '\r':
            out.append("\\r");
            break;
        case '\t':
            out.append("\\t");
            break;
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

template<qsizetype Size> void appendLiteral(QByteArray &out, const char (&text)[Size])
{
    out.append(text, Size - 1);
}

// The upper-case 8-4-4-4-12 form, written straight from the id's fields.
void appendUuid(QByteArray &out, const QUuid &id)
{
    static const char hex[] = "0123456789ABCDEF";
    char text[36];
    char *p = text;
    const auto put = [&p](unsigned value, int digits) {
        for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
            *p++ = hex[(value >> shift) & 15];
    };
    put(id.data1, 8);
    *p++ = '-';
    put(id.data2, 4);
    *p++ = '-';
    put(id.data3, 4);
    *p++ = '-';
    put(unsigned(id.data4[0]) << 8 | id.data4[1], 4);
    *p++ = '-';
    for (int i = 2; i < 8; ++i)
        put(id.data4[i], 2);
    out.append(text, sizeof text);
}

// Only the canonical 8-4-4-4-12 form with ASCII hex digits: QUuid::fromString would read any
// other digit (an Arabic-Indic one) as the null id, and records sharing it would be pinned,
// renamed and deleted together.
bool isCanonicalUuidText(const QString &text)
{
    if (text.size() != 36)
        return false;
    for (int i = 0; i < 36; ++i) {
        const char16_t c = text[i].unicode();
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
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return std::nullopt;
    return value.toDouble();
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

    const std::pair<QLatin1StringView, double PickedColor::*> numbers[] = {
        { QLatin1StringView("red"), &PickedColor::red },
        { QLatin1StringView("green"), &PickedColor::green },
        { QLatin1StringView("blue"), &PickedColor::blue },
        { QLatin1StringView("alpha"), &PickedColor::alpha },
        { QLatin1StringView("timestamp"), &PickedColor::timestamp },
    };
    for (const auto &[key, member] : numbers) {
        const std::optional<double> number = finiteNumber(object, key);
        if (!number)
            return std::nullopt;
        color.*member = *number;
    }

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
    out.reserve(colors.size() * 200 + 2);
    out.append('[');
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const PickedColor &c = colors[i];
        if (!std::isfinite(c.red) || !std::isfinite(c.green) || !std::isfinite(c.blue)
            || !std::isfinite(c.alpha) || !std::isfinite(c.timestamp))
            return std::nullopt;
        if (i > 0)
            out.append(',');
        appendLiteral(out, "{\"id\":\"");
        appendUuid(out, c.id);
        appendLiteral(out, "\",\"red\":");
        NumberText::appendShortest(out, c.red);
        appendLiteral(out, ",\"green\":");
        NumberText::appendShortest(out, c.green);
        appendLiteral(out, ",\"blue\":");
        NumberText::appendShortest(out, c.blue);
        appendLiteral(out, ",\"alpha\":");
        NumberText::appendShortest(out, c.alpha);
        if (c.name) {
            appendLiteral(out, ",\"name\":");
            appendJsonString(out, *c.name);
        }
        if (c.isPinned)
            appendLiteral(out, ",\"isPinned\":true,\"timestamp\":");
        else
            appendLiteral(out, ",\"isPinned\":false,\"timestamp\":");
        NumberText::appendShortest(out, c.timestamp);
        out.append('}');
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
        std::optional<PickedColor> color = decodeRecord(value);
        if (!color)
            return std::nullopt;
        colors.append(std::move(*color));
    }
    return colors;
}
