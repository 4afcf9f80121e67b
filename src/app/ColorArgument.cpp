// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ColorArgument.h"

#include "model/NumberText.h"

#include <QStringList>

namespace {

std::optional<ColorComponents> parseHex(QStringView text)
{
    if (text.startsWith(u'#'))
        text = text.mid(1);
    if (text.size() != 6)
        return std::nullopt;
    bool ok = false;
    const uint value = text.toUInt(&ok, 16);
    if (!ok)
        return std::nullopt;
    for (QChar c : text) // toUInt tolerates a sign or blanks; a colour has six digits
        if (!c.isDigit() && !(c.toLower() >= u'a' && c.toLower() <= u'f'))
            return std::nullopt;
    return ColorComponents { ((value >> 16) & 0xFF) / 255.0, ((value >> 8) & 0xFF) / 255.0,
        (value & 0xFF) / 255.0, 1.0 };
}

std::optional<ColorComponents> parseDecimal(const QString &text)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 3 && parts.size() != 4)
        return std::nullopt;
    double values[4] = { 0, 0, 0, 1 };
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QByteArray number = parts[i].trimmed().toLatin1();
        const auto value = NumberText::parseFinite(std::string_view(number.constData(), number.size()));
        if (!value)
            return std::nullopt;
        values[i] = *value;
    }
    return ColorComponents { values[0], values[1], values[2], values[3] };
}

} // namespace

std::optional<ColorComponents> parseColorArgument(const QString &text)
{
    if (text.contains(u','))
        return parseDecimal(text);
    return parseHex(text.trimmed());
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
    return QStringLiteral("#RRGGBB, RRGGBB, r,g,b or r,g,b,a with decimal components such as 1.0,0.42,0.21");
}

QString acceptedFormatsText()
{
    QStringList names;
    for (ColorFormat format : allColorFormats)
        names << QStringLiteral("\"%1\" (%2)").arg(rawValue(format), caseName(format));
    return names.join(QStringLiteral(", "));
}
