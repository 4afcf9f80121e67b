// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"
#include "app/CommandLine.h"

#include "model/NumberText.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

std::optional<double> parseNumber(QStringView text)
{
    const QByteArray number = text.trimmed().toLatin1();
    return NumberText::parseFinite(std::string_view(number.constData(), number.size()));
}

bool isHexDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
        [](QChar c) { return c.isDigit() || (c.toLower() >= u'a' && c.toLower() <= u'f'); });
}

// "#RRGGBB", "RRGGBB" and the CSS shorthand "#RGB" (each digit doubled).
std::optional<ColorComponents> parseHex(QStringView text)
{
    const bool hasHash = text.startsWith(u'#');
    if (hasHash)
        text = text.mid(1);
    if (!isHexDigits(text) || !(text.size() == 6 || (hasHash && text.size() == 3)))
        return std::nullopt;
    const uint value = text.toUInt(nullptr, 16);
    if (text.size() == 3) {
        auto digit = [value](int shift) { return ((value >> shift) & 0xF) * 17 / 255.0; };
        return ColorComponents { digit(8), digit(4), digit(0), 1.0 };
    }
    return ColorComponents { ((value >> 16) & 0xFF) / 255.0, ((value >> 8) & 0xFF) / 255.0,
        (value & 0xFF) / 255.0, 1.0 };
}

// Components 0...1 "r,g,b[,a]", or the eight-bit "R, G, B" that "RGB (decimal)" writes: three
// whole numbers, one of them above 1 (so "1,0,0" stays the components of red).
std::optional<ColorComponents> parseList(const QString &text)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 3 && parts.size() != 4)
        return std::nullopt;
    double values[4] = { 0, 0, 0, 1 };
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const auto value = parseNumber(parts[i]);
        if (!value)
            return std::nullopt;
        values[i] = *value;
    }
    const bool eightBit = parts.size() == 3
        && std::ranges::all_of(values, [](double v) { return v == std::floor(v); })
        && std::max({ values[0], values[1], values[2] }) > 1;
    if (eightBit)
        return ColorComponents { values[0] / 255, values[1] / 255, values[2] / 255, 1.0 };
    return ColorComponents { values[0], values[1], values[2], values[3] };
}

// Hue in degrees, the rest 0...1; `chroma` and `lightest` as HSL or HSB define them.
ColorComponents fromHue(double hue, double chroma, double lightest)
{
    const double h = std::fmod(std::fmod(hue, 360) + 360, 360) / 60;
    const double x = chroma * (1 - std::abs(std::fmod(h, 2) - 1));
    const double m = lightest - chroma;
    const double rgb[6][3] = { { chroma, x, 0 }, { x, chroma, 0 }, { 0, chroma, x }, { 0, x, chroma },
        { x, 0, chroma }, { chroma, 0, x } };
    const auto &c = rgb[std::min(int(h), 5)];
    return { c[0] + m, c[1] + m, c[2] + m, 1.0 };
}

// The functional texts Vantle writes: rgb(), rgba(), hsl(), hsb() (or hsv()), the code
// initialisers Color(red:green:blue:) and UIColor(red:green:blue:alpha:). Names in any case,
// "%" after saturation and lightness optional.
std::optional<ColorComponents> parseFunction(QStringView name, QStringView inside)
{
    static const char *const labels[] = { "red", "green", "blue", "alpha" };
    const bool isCode = name.compare(u"color", Qt::CaseInsensitive) == 0
        || name.compare(u"uicolor", Qt::CaseInsensitive) == 0;
    QList<double> v;
    for (QStringView part : inside.split(u',')) {
        part = part.trimmed();
        const qsizetype colon = part.indexOf(u':');
        if (colon >= 0) {
            if (!isCode || v.size() >= 4
                || part.left(colon).trimmed().compare(QLatin1String(labels[v.size()]), Qt::CaseInsensitive)
                    != 0)
                return std::nullopt;
            part = part.mid(colon + 1);
        }
        if (part.endsWith(u'%') && !isCode)
            part.chop(1);
        const auto value = parseNumber(part);
        if (!value)
            return std::nullopt;
        v.append(*value);
    }
    auto is = [name](const char16_t *wanted) {
        return name.compare(QStringView(wanted), Qt::CaseInsensitive) == 0;
    };
    if (v.size() == 3 && is(u"rgb"))
        return ColorComponents { v[0] / 255, v[1] / 255, v[2] / 255, 1.0 };
    if (v.size() == 4 && is(u"rgba"))
        return ColorComponents { v[0] / 255, v[1] / 255, v[2] / 255, v[3] };
    if (v.size() == 3 && is(u"hsl")) {
        const double s = v[1] / 100, l = v[2] / 100;
        const double chroma = (1 - std::abs(2 * l - 1)) * s;
        return fromHue(v[0], chroma, l + chroma / 2);
    }
    if (v.size() == 3 && (is(u"hsb") || is(u"hsv")))
        return fromHue(v[0], v[2] / 100 * v[1] / 100, v[2] / 100);
    if (v.size() == 3 && is(u"color"))
        return ColorComponents { v[0], v[1], v[2], 1.0 };
    if (v.size() == 4 && is(u"uicolor"))
        return ColorComponents { v[0], v[1], v[2], v[3] };
    return std::nullopt;
}

} // namespace

std::optional<ColorComponents> parseColorArgument(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const qsizetype open = trimmed.indexOf(u'(');
    if (open > 0 && trimmed.endsWith(u')'))
        return parseFunction(
            trimmed.left(open).trimmed(), trimmed.sliced(open + 1, trimmed.size() - open - 2));
    if (text.contains(u','))
        return parseList(text);
    return parseHex(trimmed);
}

std::optional<QString> appendColorWord(const QString &word, QList<ColorComponents> &colors)
{
    if (const auto color = parseColorArgument(word)) {
        colors.append(*color);
        return std::nullopt;
    }
    if (word.startsWith(u'-') && word.size() > 1 && !word[1].isDigit() && word[1] != u'.')
        return CommandLine::tr("unknown option \"%1\"").arg(word);
    return CommandLine::tr("cannot read the colour \"%1\"; accepted: %2").arg(word, acceptedColorsText());
}

std::optional<ColorFormat> parseFormatArgument(const QString &text)
{
    const QString wanted = text.trimmed();
    for (ColorFormat format : allColorFormats) {
        if (wanted.compare(rawValue(format), Qt::CaseInsensitive) == 0
            || wanted.compare(caseName(format), Qt::CaseInsensitive) == 0)
            return format;
    }
    return std::nullopt;
}

QString acceptedColorsText()
{
    return CommandLine::tr("any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), "
                           "UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21");
}

QString acceptedFormatsText()
{
    QStringList names;
    for (ColorFormat format : allColorFormats)
        names << QStringLiteral("\"%1\" (%2)").arg(rawValue(format), caseName(format));
    return names.join(QStringLiteral(", "));
}
