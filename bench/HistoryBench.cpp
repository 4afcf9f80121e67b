// SPDX-License-Identifier: GPL-3.0-or-later
// The history at scale, timed inside the program (the figures the outside cannot see):
//   - load + save of 10,000 colours: opening the settings file, decoding the history into the
//     model, then pinning a colour, which writes it back to disk (atomically, as every save does);
//   - the popup with 100 rows, from creating the list until its first paint has been handed
//     to the X server.
// Records each measure's runs through BenchOutput.h.
#include "BenchOutput.h"
#include "Fakes.h"
#include "app/PopupWindow.h"
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "screens/ColorListView.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

QList<PickedColor> someColors(int count)
{
    QRandomGenerator random(7);
    QList<PickedColor> colors;
    for (int i = 0; i < count; ++i) {
        PickedColor c = PickedColor::fromSample(
            random.generateDouble(), random.generateDouble(), random.generateDouble(), 1.0);
        if (i % 7 == 0)
            c.name = QStringLiteral("Colour %1").arg(i);
        c.isPinned = i % 50 == 0;
        colors.append(c);
    }
    return colors;
}

void writeHistory(const QString &path, int count)
{
    SettingsStore store(path);
    store.setInteger(PreferenceKeys::historyLimit, count);
    store.setBool(PreferenceKeys::onboardingShown, true);
    store.setData(PreferenceKeys::colorHistory, *encodeColorHistory(someColors(count)));
}

// Paints reach the screen when the event loop returns from the paint that follows a show.
class FirstPaint : public QObject {
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted = true;
        return false;
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    QTemporaryDir dir;
    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs dialogs;

    // A history as people keep it (the limit and a palette) and one far beyond any real use.
    for (const int count : { 500, 10000 }) {
        QDir(dir.path()).mkdir(QString::number(count));
        const QString folder = dir.filePath(QString::number(count));
        const QString original = folder + QStringLiteral("/original.conf");
        writeHistory(original, count);
        std::vector<double> load, save, loadSave;
        for (int run = 0; run <= runs; ++run) { // the first run brings the file into the cache
            // QSettings keeps the files it parsed for the rest of the process: a copy under a
            // new name is read from disk, as at a launch.
            const QString copy = folder + QStringLiteral("/launch-%1.conf").arg(run);
            QFile::copy(original, copy);
            QElapsedTimer clock;
            clock.start();
            SettingsStore store(copy);
            SettingsViewModel::registerDefaults(store);
            ColorListViewModel model(store, sampler, clipboard, confirmation, dialogs);
            const double loaded = clock.nsecsElapsed() / 1e6;
            // A change the user makes, saved as every change is (the history unchanged would
            // not be written at all).
            model.togglePin(model.colors().at(1));
            const double total = clock.nsecsElapsed() / 1e6;
            if (model.colors().size() != count) {
                std::fprintf(stderr, "history bench: %lld colours loaded, not %d\n",
                    (long long)model.colors().size(), count);
                return 1;
            }
            if (run == 0)
                continue;
            load.push_back(loaded);
            save.push_back(total - loaded);
            loadSave.push_back(total);
        }
        const QString suffix = QStringLiteral("_%1").arg(count);
        bench::record(
            QStringLiteral("history_load_save") + suffix, QStringLiteral("ms"), loadSave, QString());
        bench::record(QStringLiteral("history_load") + suffix, QStringLiteral("ms"), load, QString());
        bench::record(QStringLiteral("history_save") + suffix, QStringLiteral("ms"), save, QString());
    }

    const QString hundred = dir.filePath(QStringLiteral("hundred.conf"));
    writeHistory(hundred, 100);
    SettingsStore store(hundred);
    SettingsViewModel::registerDefaults(store);
    ColorListViewModel model(store, sampler, clipboard, confirmation, dialogs);
    std::vector<double> popup;
    const QRect anchor(
        QGuiApplication::primaryScreen()->geometry().topRight() - QPoint(40, 0), QSize(24, 24));
    for (int run = 0; run <= runs; ++run) { // the first run loads fonts and symbols once for all
        FirstPaint watcher;
        QElapsedTimer clock;
        clock.start();
        auto window = std::make_unique<PopupWindow>(false);
        window->installEventFilter(&watcher);
        window->setContent([&] {
            return new ColorListView(
                model, store, [] {}, [] {});
        });
        window->popUp(anchor);
        while (!watcher.painted && clock.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        const double took = clock.nsecsElapsed() / 1e6;
        window->close();
        window.reset();
        QTest::qWait(50);
        if (!watcher.painted) {
            std::fprintf(stderr, "history bench: the popup never painted\n");
            return 1;
        }
        if (run > 0)
            popup.push_back(took);
    }
    bench::record(QStringLiteral("popup_100_first_paint"), QStringLiteral("ms"), popup);
    return 0;
}
