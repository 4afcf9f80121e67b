// SPDX-License-Identifier: GPL-3.0-or-later
// Turns the figures of bench_harness, sampler_bench and history_bench (JSON, one object a line)
// into the tables people read: each figure's median (min–max) for Vantle and its floor, their
// ratio, the goal and whether it is met.
//
//   bench_report --md results.md --json results.json [--require FIGURE,...] FIGURES.jsonl...
//
// With --require, fails when a named figure is missing or any sample is not a finite number
// that is zero or more: the harness's self-test uses that.
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSaveFile>
#include <QStringList>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

struct Series {
    QString unit;
    std::vector<double> samples;
    double median() const
    {
        std::vector<double> v = samples;
        std::sort(v.begin(), v.end());
        const size_t n = v.size();
        return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
    }
    double min() const { return *std::min_element(samples.begin(), samples.end()); }
    double max() const { return *std::max_element(samples.begin(), samples.end()); }
};

// Key: figure|program|size.
using Figures = QMap<QString, Series>;

QString key(const QString &figure, const QString &program, const QString &size)
{
    return figure + QLatin1Char('|') + program + QLatin1Char('|') + size;
}

// How a goal is judged.
enum class Goal {
    None, // shown for reference
    RatioToFloor, // Vantle's median ≤ limit × the floor's median
    Absolute, // Vantle's median ≤ limit
    Zero, // every sample is 0
};

struct RowSpec {
    QString figure;
    QString title;
    Goal goal;
    double limit;
};

const std::vector<RowSpec> &rowSpecs()
{
    static const std::vector<RowSpec> specs {
        { QStringLiteral("start_docked"), QStringLiteral("start → tray icon docked"), Goal::RatioToFloor,
            1.2 },
        { QStringLiteral("rss_start"), QStringLiteral("RSS 2 s after start"), Goal::RatioToFloor, 1.3 },
        { QStringLiteral("rss_after_picks"),
            QStringLiteral("RSS 15 s after 5 picks (floor: 2 s after start)"), Goal::RatioToFloor, 1.3 },
        { QStringLiteral("rss_growth"),
            QStringLiteral("RSS growth: after 100 picks + 20 popups − after start"), Goal::Absolute, 2.0 },
        { QStringLiteral("rss_growth_after_first_use"),
            QStringLiteral("RSS growth: after 100 picks + 20 popups − after the first pick and popup"),
            Goal::None, 0 },
        { QStringLiteral("shortcut_loupe_steady"), QStringLiteral("shortcut → loupe viewable"),
            Goal::Absolute, 25.0 },
        { QStringLiteral("shortcut_loupe_first"),
            QStringLiteral("shortcut → loupe viewable, first pick after start"), Goal::Absolute, 25.0 },
        { QStringLiteral("command_loupe"), QStringLiteral("`vantle pick` → loupe viewable"), Goal::Absolute,
            40.0 },
        { QStringLiteral("idle_after_start_ticks"), QStringLiteral("idle CPU ticks, after start"), Goal::Zero,
            0 },
        { QStringLiteral("idle_after_start_switches"), QStringLiteral("idle context switches, after start"),
            Goal::Zero, 0 },
        { QStringLiteral("idle_after_pick_ticks"), QStringLiteral("idle CPU ticks, after a pick"), Goal::Zero,
            0 },
        { QStringLiteral("idle_after_pick_switches"), QStringLiteral("idle context switches, after a pick"),
            Goal::Zero, 0 },
        { QStringLiteral("idle_after_popup_ticks"), QStringLiteral("idle CPU ticks, after the popup"),
            Goal::Zero, 0 },
        { QStringLiteral("idle_after_popup_switches"),
            QStringLiteral("idle context switches, after the popup"), Goal::Zero, 0 },
        { QStringLiteral("loupe_redraw"), QStringLiteral("loupe redraw per pointer move, largest zoom"),
            Goal::Absolute, 2.0 },
        { QStringLiteral("loupe_redraw_worst"), QStringLiteral("slowest pointer move of a run, largest zoom"),
            Goal::Absolute, 16.7 },
        { QStringLiteral("sampler_loupe_mapped"), QStringLiteral("in process: pick() → loupe mapped"),
            Goal::None, 0 },
        { QStringLiteral("sampler_first_frame"),
            QStringLiteral("in process: pick() → loupe's first frame on screen"), Goal::None, 0 },
        { QStringLiteral("pick_colour_conversion"),
            QStringLiteral("a pick's colour conversion from the monitor's profile"), Goal::Absolute, 100 },
        { QStringLiteral("colour_profile_build"),
            QStringLiteral("building a profile's conversion, when the profile changes"), Goal::None, 0 },
        { QStringLiteral("colour_profiles_start"),
            QStringLiteral("reading every monitor's profile, once after start"), Goal::None, 0 },
        { QStringLiteral("history_load_save_500"), QStringLiteral("history load + save, 500 colours"),
            Goal::Absolute, 2.0 },
        { QStringLiteral("history_load_save_10000"), QStringLiteral("history load + save, 10,000 colours"),
            Goal::Absolute, 30.0 },
        { QStringLiteral("history_load_10000"), QStringLiteral("…of which load"), Goal::None, 0 },
        { QStringLiteral("history_save_10000"), QStringLiteral("…of which save"), Goal::None, 0 },
        { QStringLiteral("popup_100_first_paint"), QStringLiteral("popup with 100 rows → first paint"),
            Goal::Absolute, 16.0 },
        { QStringLiteral("export_10000"), QStringLiteral("`vantle export` of 10,000 colours"), Goal::Absolute,
            100.0 },
        { QStringLiteral("rss_before_use"), QStringLiteral("RSS before the 100 picks + 20 popups"),
            Goal::None, 0 },
        { QStringLiteral("rss_after_first_use"), QStringLiteral("RSS after the first pick and popup"),
            Goal::None, 0 },
        { QStringLiteral("rss_after_use"), QStringLiteral("RSS after the 100 picks + 20 popups"), Goal::None,
            0 },
    };
    return specs;
}

QString number(double v)
{
    const double a = std::fabs(v);
    return QString::number(v, 'f', a >= 100 ? 0 : a >= 10 ? 1 : 2);
}

QString cell(const Series &s)
{
    if (s.samples.size() == 1)
        return number(s.samples.front());
    return QStringLiteral("%1 (%2–%3)").arg(number(s.median()), number(s.min()), number(s.max()));
}

QJsonObject seriesJson(const Series &s)
{
    QJsonArray samples;
    for (double v : s.samples)
        samples.append(v);
    return { { QStringLiteral("median"), s.median() }, { QStringLiteral("min"), s.min() },
        { QStringLiteral("max"), s.max() }, { QStringLiteral("runs"), int(s.samples.size()) },
        { QStringLiteral("samples"), samples } };
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    QString mdPath, jsonPath;
    QStringList required;
    QStringList inputs;
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (args[i] == u"--md" && i + 1 < args.size())
            mdPath = args[++i];
        else if (args[i] == u"--json" && i + 1 < args.size())
            jsonPath = args[++i];
        else if (args[i] == u"--require" && i + 1 < args.size())
            required = args[++i].split(QLatin1Char(','), Qt::SkipEmptyParts);
        else
            inputs.append(args[i]);
    }
    QTextStream err(stderr);

    Figures figures;
    QStringList sizes;
    bool wellFormed = true;
    for (const QString &path : inputs) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            err << "bench report: cannot read " << path << Qt::endl;
            return 1;
        }
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.trimmed().isEmpty())
                continue;
            const QJsonObject o = QJsonDocument::fromJson(line).object();
            const QString figure = o.value(QStringLiteral("figure")).toString();
            const QJsonArray samples = o.value(QStringLiteral("samples")).toArray();
            if (figure.isEmpty() || samples.isEmpty()) {
                err << "bench report: a malformed line in " << path << ": " << line << Qt::endl;
                wellFormed = false;
                continue;
            }
            const QString size = o.value(QStringLiteral("size")).toString();
            Series &s = figures[key(figure, o.value(QStringLiteral("program")).toString(), size)];
            s.unit = o.value(QStringLiteral("unit")).toString();
            for (const QJsonValue &v : samples) {
                if (!v.isDouble() || !std::isfinite(v.toDouble()) || v.toDouble() < 0) {
                    err << "bench report: " << figure << " has a sample that is no figure" << Qt::endl;
                    wellFormed = false;
                    continue;
                }
                s.samples.push_back(v.toDouble());
            }
            if (s.samples.empty())
                figures.remove(key(figure, o.value(QStringLiteral("program")).toString(), size));
            if (!size.isEmpty() && !sizes.contains(size))
                sizes.append(size);
        }
    }
    std::sort(sizes.begin(), sizes.end(), [](const QString &a, const QString &b) {
        return a.size() < b.size() || (a.size() == b.size() && a < b);
    });
    for (const QString &figure : required) {
        bool found = false;
        for (auto it = figures.constBegin(); it != figures.constEnd(); ++it)
            found = found || it.key().startsWith(figure + QLatin1String("|vantle|"));
        if (!found) {
            err << "bench report: no figure " << figure << Qt::endl;
            wellFormed = false;
        }
    }

    QString md;
    QTextStream table(&md);
    table << "| figure | screen | Vantle | floor | Vantle ÷ floor | goal | met "
             "|\n|---|---|---|---|---|---|---|\n";
    QJsonArray rows;
    int missed = 0;
    QStringList allSizes = sizes;
    allSizes.prepend(QString());
    for (const RowSpec &spec : rowSpecs()) {
        for (const QString &size : allSizes) {
            const auto vantle = figures.find(key(spec.figure, QStringLiteral("vantle"), size));
            if (vantle == figures.end())
                continue;
            const auto floor = figures.find(key(spec.figure, QStringLiteral("floor"), size));
            const bool hasFloor = floor != figures.end();
            const double v = vantle->median();
            std::optional<double> ratio;
            if (hasFloor && floor->median() > 0)
                ratio = v / floor->median();
            QString goal;
            std::optional<bool> met;
            switch (spec.goal) {
            case Goal::None:
                break;
            case Goal::RatioToFloor:
                goal = QStringLiteral("≤ %1× floor").arg(spec.limit);
                if (ratio)
                    met = *ratio <= spec.limit;
                break;
            case Goal::Absolute:
                goal = QStringLiteral("≤ %1 %2").arg(spec.limit).arg(vantle->unit);
                met = v <= spec.limit;
                break;
            case Goal::Zero:
                goal = QStringLiteral("0");
                met = vantle->max() == 0;
                break;
            }
            if (met && !*met)
                ++missed;
            table << "| " << spec.title << " (" << vantle->unit << ") | "
                  << (size.isEmpty() ? QStringLiteral("–") : size) << " | " << cell(*vantle) << " | "
                  << (hasFloor ? cell(*floor) : QStringLiteral("–")) << " | "
                  << (ratio ? QStringLiteral("%1×").arg(number(*ratio)) : QStringLiteral("–")) << " | "
                  << (goal.isEmpty() ? QStringLiteral("–") : goal) << " | "
                  << (met ? (*met ? QStringLiteral("yes") : QStringLiteral("**no**")) : QStringLiteral("–"))
                  << " |\n";
            QJsonObject row { { QStringLiteral("figure"), spec.figure },
                { QStringLiteral("title"), spec.title }, { QStringLiteral("size"), size },
                { QStringLiteral("unit"), vantle->unit }, { QStringLiteral("vantle"), seriesJson(*vantle) } };
            if (hasFloor)
                row.insert(QStringLiteral("floor"), seriesJson(*floor));
            if (ratio)
                row.insert(QStringLiteral("ratio"), *ratio);
            if (!goal.isEmpty())
                row.insert(QStringLiteral("goal"), goal);
            if (met)
                row.insert(QStringLiteral("met"), *met);
            rows.append(row);
        }
    }
    table.flush();

    const QString when = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd HH:mm 'UTC'"));
    const QString machine
        = QStringLiteral("%1, %2 cores").arg(QSysInfo::prettyProductName()).arg(QThread::idealThreadCount());
    if (!mdPath.isEmpty()) {
        QSaveFile file(mdPath);
        if (file.open(QIODevice::WriteOnly)) {
            QTextStream out(&file);
            out << "# Vantle: speed and footprint\n\n"
                << when << ", " << machine
                << ". Xvfb with openbox and trayer; median (min–max) over the runs; the floor is the "
                   "bare Qt program doing the same job in the same run.\n\n"
                << md << "\n"
                << missed << " goal(s) missed.\n";
            out.flush();
            file.commit();
        }
    }
    if (!jsonPath.isEmpty()) {
        QSaveFile file(jsonPath);
        if (file.open(QIODevice::WriteOnly)) {
            const QJsonObject root { { QStringLiteral("date"), when }, { QStringLiteral("machine"), machine },
                { QStringLiteral("missed"), missed }, { QStringLiteral("rows"), rows } };
            file.write(QJsonDocument(root).toJson());
            file.commit();
        }
    }
    QTextStream(stdout) << md;
    return wellFormed ? 0 : 1;
}
