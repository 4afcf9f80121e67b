// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Readable failure messages for Qt values in GoogleTest (force-included into every test).
#include <QByteArray>
#include <QString>
#include <ostream>

inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *os)
{
    *os << '"' << bytes.toStdString() << '"';
}
