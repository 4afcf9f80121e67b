#include "model/PickedColor.h"

#include "model/NumberText.h"

#include <QDateTime>
#include <bitset>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

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

int hexValue(char16_t c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
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
        } else if (hexValue(c.unicode()) < 0) {
            return false;
        }
    }
    return true;
}

// 36 bytes of canonical UUID text, hex digits in either case.
std::optional<QUuid> uuidFromCanonicalBytes(const char *text)
{
    char bytes[16];
    int i = 0;
    for (char &byte : bytes) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (text[i] != '-')
                return std::nullopt;
            ++i;
        }
        const int high = hexValue(static_cast<unsigned char>(text[i]));
        const int low = hexValue(static_cast<unsigned char>(text[i + 1]));
        if (high < 0 || low < 0)
            return std::nullopt;
        byte = static_cast<char>(high << 4 | low);
        i += 2;
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes, sizeof bytes));
}

// The length of the well-formed UTF-8 sequence for one character beyond ASCII at `p` (no
// overlong forms, no surrogates, nothing above U+10FFFF; noncharacters are fine), or 0.
int utf8SequenceLength(const unsigned char *p, const unsigned char *end)
{
    const auto isTail = [](unsigned char b) { return (b & 0xC0) == 0x80; };
    const unsigned char lead = p[0];
    if (lead >= 0xC2 && lead <= 0xDF)
        return end - p >= 2 && isTail(p[1]) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        if (end - p < 3 || !isTail(p[1]) || !isTail(p[2]))
            return 0;
        if ((lead == 0xE0 && p[1] < 0xA0) || (lead == 0xED && p[1] >= 0xA0))
            return 0;
        return 3;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        if (end - p < 4 || !isTail(p[1]) || !isTail(p[2]) || !isTail(p[3]))
            return 0;
        if ((lead == 0xF0 && p[1] < 0x90) || (lead == 0xF4 && p[1] >= 0x90))
            return 0;
        return 4;
    }
    return 0;
}

// Reads the stored history in one pass over its bytes, keeping only the fields of the record at
// hand. Every history so far was read by QJsonDocument, so this reader accepts exactly what
// that one accepted and yields the same values, leniencies included: any character after a
// backslash stands for itself, control characters need no escape, "1." and ".5" are numbers,
// -0 reads as 0, a repeated key keeps its last value, and an unescaped string value (not a key)
// loses a leading U+FEFF, as QString::fromUtf8 drops it.
class HistoryReader {
public:
    explicit HistoryReader(const QByteArray &json)
        : m_p(json.constData())
        , m_end(m_p + json.size())
    {
    }

    std::optional<QList<PickedColor>> read();

private:
    // The depth of nested arrays and objects QJsonDocument gave up at. The history array is
    // level 1, its records level 2.
    static constexpr int maximumNesting = 1024;
    static constexpr int recordLevel = 2;

    // A string as it stands between its quotes.
    struct Text {
        const char *begin = nullptr;
        const char *end = nullptr;
        bool isEscaped = false;
    };
    enum class Kind : unsigned char { missing, number, text, isTrue, isFalse, null, container };
    struct Value {
        Kind kind = Kind::missing;
        double number = 0;
        Text text;
    };
    enum Field {
        idField,
        redField,
        greenField,
        blueField,
        alphaField,
        nameField,
        isPinnedField,
        timestampField,
        fieldCount
    };

    static int fieldNamed(const Text &key);
    static QString decodeEscaped(const Text &text);
    static QString valueText(const Text &text);
    static bool toColor(const Value (&fields)[fieldCount], PickedColor &color);

    void skipBlanks()
    {
        while (m_p < m_end && (*m_p == ' ' || *m_p == '\n' || *m_p == '\r' || *m_p == '\t'))
            ++m_p;
    }
    bool readText(Text &text);
    bool readKey(Text &key);
    bool readWord(std::string_view word);
    bool readNumber(double &number);
    bool readScalar(Value &value);
    bool readValue(Value &value);
    bool skipContainer();
    bool readRecord(PickedColor &color);

    const char *m_p;
    const char *m_end;
};

std::optional<QList<PickedColor>> HistoryReader::read()
{
    if (m_end - m_p > 3 && std::memcmp(m_p, "\xEF\xBB\xBF", 3) == 0)
        m_p += 3;
    skipBlanks();
    if (m_p == m_end || *m_p++ != '[')
        return std::nullopt;
    skipBlanks();
    QList<PickedColor> colors;
    if (m_p < m_end && *m_p == ']') {
        ++m_p;
    } else {
        for (;;) {
            if (m_p == m_end || *m_p != '{')
                return std::nullopt;
            PickedColor color;
            if (!readRecord(color))
                return std::nullopt;
            colors.append(std::move(color));
            skipBlanks();
            if (m_p == m_end)
                return std::nullopt;
            const char next = *m_p++;
            if (next == ']')
                break;
            if (next != ',')
                return std::nullopt;
            skipBlanks();
        }
    }
    skipBlanks();
    if (m_p != m_end)
        return std::nullopt;
    return colors;
}

bool HistoryReader::readRecord(PickedColor &color)
{
    Value fields[fieldCount];
    ++m_p;
    skipBlanks();
    if (m_p < m_end && *m_p == '}')
        return false;
    for (;;) {
        Text key;
        if (!readKey(key))
            return false;
        const int field = fieldNamed(key);
        Value unknown;
        if (!readValue(field < fieldCount ? fields[field] : unknown))
            return false;
        skipBlanks();
        if (m_p == m_end)
            return false;
        const char next = *m_p++;
        if (next == '}')
            break;
        if (next != ',')
            return false;
        skipBlanks();
    }
    return toColor(fields, color);
}

bool HistoryReader::toColor(const Value (&fields)[fieldCount], PickedColor &color)
{
    const Value &id = fields[idField];
    if (id.kind != Kind::text)
        return false;
    if (!id.text.isEscaped && id.text.end - id.text.begin == 36) {
        const std::optional<QUuid> uuid = uuidFromCanonicalBytes(id.text.begin);
        if (!uuid)
            return false;
        color.id = *uuid;
    } else {
        // Escaped, or not 36 bytes: checked as characters. Only ASCII hex digits count: any other
        // digit would reach QUuid::fromString as the null id, and records sharing it would be
        // pinned, renamed and deleted together.
        const QString text = valueText(id.text);
        if (!isCanonicalUuidText(text))
            return false;
        color.id = QUuid::fromString(text);
    }

    const std::pair<Field, double PickedColor::*> numbers[] = {
        { redField, &PickedColor::red },
        { greenField, &PickedColor::green },
        { blueField, &PickedColor::blue },
        { alphaField, &PickedColor::alpha },
        { timestampField, &PickedColor::timestamp },
    };
    for (const auto &[field, member] : numbers) {
        if (fields[field].kind != Kind::number)
            return false;
        color.*member = fields[field].number;
    }

    const Kind pinned = fields[isPinnedField].kind;
    if (pinned != Kind::isTrue && pinned != Kind::isFalse)
        return false;
    color.isPinned = pinned == Kind::isTrue;

    const Value &name = fields[nameField];
    if (name.kind == Kind::text)
        color.name = valueText(name.text);
    else if (name.kind != Kind::null && name.kind != Kind::missing)
        return false;
    return true;
}

int HistoryReader::fieldNamed(const Text &key)
{
    static constexpr std::string_view names[fieldCount]
        = { "id", "red", "green", "blue", "alpha", "name", "isPinned", "timestamp" };
    if (key.isEscaped) {
        const QString text = decodeEscaped(key);
        for (int i = 0; i < fieldCount; ++i) {
            if (text == QLatin1StringView(names[i].data(), names[i].size()))
                return i;
        }
        return fieldCount;
    }
    const std::string_view bytes(key.begin, key.end - key.begin);
    for (int i = 0; i < fieldCount; ++i) {
        if (bytes == names[i])
            return i;
    }
    return fieldCount;
}

QString HistoryReader::valueText(const Text &text)
{
    if (text.isEscaped)
        return decodeEscaped(text);
    return QString::fromUtf8(text.begin, text.end - text.begin);
}

// Escapes and characters one at a time; a \u escape is one UTF-16 unit, so a lone half of a
// surrogate pair reads back as it was saved.
QString HistoryReader::decodeEscaped(const Text &text)
{
    QString decoded;
    decoded.reserve(text.end - text.begin);
    const auto *p = reinterpret_cast<const unsigned char *>(text.begin);
    const auto *end = reinterpret_cast<const unsigned char *>(text.end);
    while (p < end) {
        const unsigned char lead = *p;
        if (lead == '\\') {
            const unsigned char escaped = p[1];
            p += 2;
            char16_t unit = escaped;
            switch (escaped) {
            case 'b':
                unit = u'\b';
                break;
            case 'f':
                unit = u'\f';
                break;
            case 'n':
                unit = u'\n';
                break;
            case 'r':
                unit = u'\r';
                break;
            case 't':
                unit = u'\t';
                break;
            case 'u':
                unit = char16_t(
                    hexValue(p[0]) << 12 | hexValue(p[1]) << 8 | hexValue(p[2]) << 4 | hexValue(p[3]));
                p += 4;
                break;
            }
            decoded.append(QChar(unit));
        } else if (lead < 0x80) {
            decoded.append(QChar(lead));
            ++p;
        } else if (lead < 0xE0) {
            decoded.append(QChar(char16_t((lead & 0x1F) << 6 | (p[1] & 0x3F))));
            p += 2;
        } else if (lead < 0xF0) {
            decoded.append(QChar(char16_t((lead & 0x0F) << 12 | (p[1] & 0x3F) << 6 | (p[2] & 0x3F))));
            p += 3;
        } else {
            const char32_t code
                = (lead & 0x07) << 18 | (p[1] & 0x3F) << 12 | (p[2] & 0x3F) << 6 | (p[3] & 0x3F);
            decoded.append(QChar(QChar::highSurrogate(code)));
            decoded.append(QChar(QChar::lowSurrogate(code)));
            p += 4;
        }
    }
    return decoded;
}

// On the opening quote. Checks the UTF-8 and that every \u has four hex digits; leaves the
// decoding to whoever needs the text.
bool HistoryReader::readText(Text &text)
{
    ++m_p;
    text.begin = m_p;
    text.isEscaped = false;
    const auto *end = reinterpret_cast<const unsigned char *>(m_end);
    while (m_p < m_end) {
        const auto *p = reinterpret_cast<const unsigned char *>(m_p);
        if (*p == '"') {
            text.end = m_p++;
            return true;
        }
        if (*p == '\\') {
            text.isEscaped = true;
            if (end - p < 2)
                return false;
            if (p[1] == 'u') {
                if (end - p < 6)
                    return false;
                for (int i = 2; i < 6; ++i) {
                    if (hexValue(p[i]) < 0)
                        return false;
                }
                m_p += 6;
            } else {
                m_p += 2;
            }
        } else if (*p < 0x80) {
            ++m_p;
        } else {
            const int length = utf8SequenceLength(p, end);
            if (length == 0)
                return false;
            m_p += length;
        }
    }
    return false;
}

bool HistoryReader::readKey(Text &key)
{
    if (m_p == m_end || *m_p != '"' || !readText(key))
        return false;
    skipBlanks();
    if (m_p == m_end || *m_p++ != ':')
        return false;
    skipBlanks();
    return true;
}

bool HistoryReader::readWord(std::string_view word)
{
    if (static_cast<size_t>(m_end - m_p) < word.size() || std::memcmp(m_p, word.data(), word.size()) != 0)
        return false;
    m_p += word.size();
    return true;
}

// Takes the characters QJsonDocument took for a number: an optional minus, "0" or a run of
// digits, a fraction and an exponent whose digits may be missing. The conversion then turns down
// what is not a number ("-", "1e") and what no double holds: 1e400, and 1e-400, which is not 0.
bool HistoryReader::readNumber(double &number)
{
    const char *start = m_p;
    const auto skipDigits = [this] {
        while (m_p < m_end && *m_p >= '0' && *m_p <= '9')
            ++m_p;
    };
    if (m_p < m_end && *m_p == '-')
        ++m_p;
    if (m_p < m_end && *m_p == '0')
        ++m_p;
    else
        skipDigits();
    if (m_p < m_end && *m_p == '.') {
        ++m_p;
        skipDigits();
    }
    if (m_p < m_end && (*m_p == 'e' || *m_p == 'E')) {
        ++m_p;
        if (m_p < m_end && (*m_p == '+' || *m_p == '-'))
            ++m_p;
        skipDigits();
    }
    const auto result = std::from_chars(start, m_p, number);
    if (result.ec != std::errc() || result.ptr != m_p)
        return false;
    if (number == 0)
        number = 0; // QJsonDocument kept whole numbers as integers, which have no -0
    return true;
}

bool HistoryReader::readScalar(Value &value)
{
    switch (*m_p) {
    case '"':
        value.kind = Kind::text;
        return readText(value.text);
    case 't':
        value.kind = Kind::isTrue;
        return readWord("true");
    case 'f':
        value.kind = Kind::isFalse;
        return readWord("false");
    case 'n':
        value.kind = Kind::null;
        return readWord("null");
    default:
        value.kind = Kind::number;
        return readNumber(value.number);
    }
}

bool HistoryReader::readValue(Value &value)
{
    if (m_p == m_end)
        return false;
    if (*m_p == '[' || *m_p == '{') {
        value.kind = Kind::container;
        return skipContainer();
    }
    return readScalar(value);
}

// Checks and skips an array or object inside a record, without recursion: one bit per open
// level says whether it is an object.
bool HistoryReader::skipContainer()
{
    std::bitset<maximumNesting + 1> isObject;
    int level = recordLevel;
    for (;;) {
        if (m_p == m_end)
            return false;
        const char first = *m_p;
        if (first == '[' || first == '{') {
            if (++level > maximumNesting)
                return false;
            isObject[level] = first == '{';
            ++m_p;
            skipBlanks();
            if (m_p < m_end && *m_p == (first == '{' ? '}' : ']')) {
                ++m_p;
                --level;
            } else {
                Text key;
                if (first == '{' && !readKey(key))
                    return false;
                continue;
            }
        } else {
            Value scalar;
            if (!readScalar(scalar))
                return false;
        }
        // After a value: close what ends here, or go on to the next value.
        for (;;) {
            if (level == recordLevel)
                return true;
            skipBlanks();
            if (m_p == m_end)
                return false;
            const char next = *m_p++;
            if (next == ',') {
                skipBlanks();
                Text key;
                if (isObject[level] && !readKey(key))
                    return false;
                break;
            }
            if (next != (isObject[level] ? '}' : ']'))
                return false;
            --level;
        }
    }
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
    return HistoryReader(json).read();
}
