// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

// Locale-free number text for everything a machine reads: the clipboard, files, the command
// line. QCoreApplication applies the user's locale to the C library at start, so printf would
// write "0,42" for a user with decimal commas; std::to_chars never does.
namespace NumberText {

// The C library's "%.Nf": the exact binary value rounded to N decimals, ties to even.
QString fixed(double value, int decimals);

// A double rounded to an integer, halves away from zero, printed in full without a sign on
// zero. Finite values only.
QString roundedInteger(double value);

// Appends the shortest text that reads back as the same double (for JSON). Finite values only.
void appendShortest(QByteArray &out, double value);

// Parses a whole decimal number (no blanks, no hex, no "inf"/"nan"); exact to the nearest
// double.
std::optional<double> parseFinite(std::string_view text);

} // namespace NumberText
