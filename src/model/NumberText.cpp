// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/NumberText.h"

#include <charconv>
#include <cmath>

namespace NumberText {

QString fixed(double value, int decimals)
{
    char buffer[400]; // enough for any finite double in fixed notation
    const auto result
        = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    if (result.ec != std::errc())
        return QStringLiteral("nan");
    return QString::fromLatin1(buffer, result.ptr - buffer);
}

QString roundedInteger(double value)
{
    double rounded = std::round(value);
    if (rounded == 0.0)
        rounded = 0.0; // no "-0"
    return fixed(rounded, 0);
}

void appendShortest(QByteArray &out, double value)
{
    char buffer[32]; // the longest is 24 characters: -2.2250738585072014e-308
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr - buffer);
}

std::optional<double> parseFinite(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    // from_chars refuses a leading '+', which people do type.
    if (text.front() == '+')
        text.remove_prefix(1);
    if (text.empty()
        || !(std::isdigit(static_cast<unsigned char>(text.front())) || text.front() == '-'
            || text.front() == '.'))
        return std::nullopt;
    double value = 0;
    const auto result
        = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::general);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace NumberText
