// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one screen of the popup on a real X display in a light or dark theme and captures the
// screen with ImageMagick's `import`, for looking at the screens as a person sees them.
//
//   screens_showcase --theme light|dark --screen empty|list|detail|longest|rename --output shot.png
//
// Prints "view <width>x<height>" of the colour list view so the calling script can check it.
// "longest" is the detail screen of the colour whose texts are longest (white, a 40-character
// name): every text on it must be drawn whole, else it prints what was cut and exits with 1.
#include "history/ColorListViewModel.h"
#include "model/ColorHistoryCodec.h"
#include "screens/ColorDetailView.h"
#include "screens/ColorListView.h"
#include "screens/ColorRowView.h"
#include "screens/ElidedLabel.h"
#include "screens/FormatLine.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "support/HistoryFakes.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProcess>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <cmath>
#include <cstdio>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x3A, 0x3A, 0x3C), QColor(0x2A, 0x2A, 0x2C)); // button, window
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x7E, 0xF0));
    return palette;
}

PickedColor sample(double r, double g, double b, bool pinned = false, const char *name = nullptr)
{
    PickedColor color = PickedColor::fromSample(r, g, b, 1.0);
    color.isPinned = pinned;
    if (name)
        color.name = QString::fromUtf8(name);
    return color;
}

// Texts of `screen` drawn in less width than their font needs, measured afresh here rather
// than trusted to the widgets' own size hints. A code initialiser wider than the popup is
// elided in the middle by design: it must keep its opening and its end, and the line's tooltip
// holds it whole.
QStringList cutTexts(const QWidget &screen)
{
    QStringList cut;
    const auto report = [&cut](const QString &text, qreal needed, int got) {
        cut << QStringLiteral("\"%1\" needs %2 px, got %3").arg(text).arg(std::ceil(needed)).arg(got);
    };
    for (const ElidedLabel *label : screen.findChildren<ElidedLabel *>()) {
        if (!label->isVisibleTo(&screen))
            continue;
        const auto *line = qobject_cast<const FormatLine *>(label->parentWidget());
        if (line && (line->format() == ColorFormat::swiftUI || line->format() == ColorFormat::uiColor)
            && label->objectName() == u"valueLabel") {
            const QString shown = label->shownText();
            if (line->toolTip() != line->value() || !shown.startsWith(line->value().left(8))
                || !shown.endsWith(line->value().right(6)))
                cut << QStringLiteral("\"%1\" shown as \"%2\"").arg(line->value(), shown);
            continue;
        }
        if (label->hasHeightForWidth()) {
            if (label->heightForWidth(label->width()) > label->height())
                report(label->text(), label->heightForWidth(label->width()), label->height());
            continue;
        }
        const qreal needed = QFontMetricsF(label->shownFont()).horizontalAdvance(label->text());
        if (needed > label->width())
            report(label->text(), needed, label->width());
    }
    return cut;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption({ QStringLiteral("theme"), QStringLiteral("light or dark"), QStringLiteral("theme") });
    parser.addOption({ QStringLiteral("screen"), QStringLiteral("empty, list, detail or rename"),
        QStringLiteral("screen") });
    parser.addOption({ QStringLiteral("output"), QStringLiteral("PNG file"), QStringLiteral("file") });
    parser.process(app);

    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(parser.value(QStringLiteral("theme")) == u"dark"
            ? darkPalette()
            : QApplication::style()->standardPalette());

    QTemporaryDir dir;
    SettingsStore store(dir.filePath(QStringLiteral("Vantle.conf")));
    const QString screen = parser.value(QStringLiteral("screen"));
    QList<PickedColor> colors;
    if (screen == u"longest") {
        colors = { sample(1.0, 1.0, 1.0, true, "Warm sunset orange for the spring banner") };
    } else if (screen != u"empty") {
        colors = {
            sample(0.2, 0.4, 0.8),
            sample(1.0, 0.42, 0.21, true, "Brand orange"),
            sample(1.0, 1.0, 1.0),
            sample(0.13, 0.55, 0.13, true),
            sample(0.07, 0.07, 0.09),
            sample(0.93, 0.82, 0.24, true, "Highlighter yellow with a rather long name"),
            sample(0.55, 0.27, 0.68),
            sample(0.5, 0.5, 0.5),
        };
    }
    store.setData(PreferenceKeys::colorHistory, *encodeColorHistory(colors));

    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs dialogs;
    ColorListViewModel model(store, sampler, clipboard, confirmation, dialogs);
    ColorListView view(
        model, store, [] {}, [] {});
    view.setWindowTitle(QStringLiteral("vantle"));
    view.move(40, 40);
    view.show();

    QTimer::singleShot(300, &view, [&] {
        if (screen == u"longest") {
            view.openColor(colors.at(0));
        } else if (screen == u"detail") {
            view.openColor(colors.at(1));
            view.detailView()->copy(ColorFormat::rgb);
        } else if (screen == u"rename") {
            view.openRenameSheet(view.rows().first()->color());
        }
    });
    // Past the 0.2 s screen change and the 0.15 s check mark, well before its 1.5 s reset.
    QTimer::singleShot(1100, &view, [&] {
        std::printf("view %dx%d\n", view.width(), view.height());
        std::fflush(stdout);
        const QRect frame = view.frameGeometry().adjusted(-20, -20, 80, 40);
        const QString crop = QStringLiteral("%1x%2+%3+%4")
                                 .arg(frame.width())
                                 .arg(frame.height())
                                 .arg(qMax(0, frame.x()))
                                 .arg(qMax(0, frame.y()));
        const int status = QProcess::execute(QStringLiteral("import"),
            { QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("-crop"), crop,
                parser.value(QStringLiteral("output")) });
        const QStringList cut = screen == u"longest" ? cutTexts(*view.detailView()) : QStringList();
        for (const QString &text : cut)
            std::printf("cut: %s\n", qPrintable(text));
        app.exit(cut.isEmpty() ? status : 1);
    });
    return app.exec();
}
