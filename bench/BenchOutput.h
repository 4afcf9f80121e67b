// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The in-process benchmarks' figures, in the harness's form: one JSON object a line,
// {"figure", "program", "size", "unit", "samples"}, appended to the file named by
// VANTLE_BENCH_OUT (standard output when unset). bench_report makes the tables.
#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace bench {

inline QString screenSize()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return QString();
    const QSize size = screen->size() * screen->devicePixelRatio();
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

inline void record(const QString &figure, const QString &unit, const std::vector<double> &samples,
    const QString &size = screenSize())
{
    QJsonArray values;
    for (double v : samples)
        values.append(v);
    const QJsonObject object { { QStringLiteral("figure"), figure },
        { QStringLiteral("program"), QStringLiteral("vantle") }, { QStringLiteral("size"), size },
        { QStringLiteral("unit"), unit }, { QStringLiteral("samples"), values } };
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    const QByteArray path = qgetenv("VANTLE_BENCH_OUT");
    QFile file;
    if (path.isEmpty() ? file.open(stdout, QIODevice::WriteOnly)
                       : (file.setFileName(QString::fromLocal8Bit(path)), file.open(QIODevice::Append)))
        file.write(line);
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n == 0 ? 0 : n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

} // namespace bench
