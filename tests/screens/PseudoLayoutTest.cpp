// SPDX-License-Identifier: GPL-3.0-or-later
// Every screen on a real X server, in a language 40% longer than English with accents above and
// below (or, with VANTLE_TEST_LANGUAGE=de, a shipped one): no text cut, nothing outside its
// parent or off the screen, no two texts over each other.
#include "app/Translations.h"
#include "history/ColorListViewModel.h"
#include "history/CopyHud.h"
#include "history/FileExportDialogs.h"
#include "hotkeys/HotkeyManager.h"
#include "platform/network/QtUpdateNetwork.h"
#include "screens/CapsuleLabel.h"
#include "screens/ColorListView.h"
#include "screens/DialogUpdateInterface.h"
#include "screens/ElidedLabel.h"
#include "screens/OnboardingView.h"
#include "screens/OnboardingWindow.h"
#include "screens/SettingsView.h"
#include "screens/SettingsWindow.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

namespace {

// Letters carry a circumflex above and a dot below, and a tail of accented letters makes the
// text 40% longer; placeholders, colour texts, markup and line breaks stay as they are.
class PseudoTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        if (text == u"QT_LAYOUT_DIRECTION")
            return QStringLiteral("LTR");
        // A letter gets its accents unless it belongs to a placeholder, a colour, markup or an entity.
        static const QRegularExpression parts(
            QStringLiteral(R"(%\d|%n|#[0-9A-Fa-f]{6}|<[^>]*>|&\w+;|(\p{L}))"));
        QString out = text;
        for (qsizetype shift = 0; const QRegularExpressionMatch &m : parts.globalMatch(text))
            if (m.capturedLength(1))
                out.insert(m.capturedEnd() + shift, u"\u0302\u0323"), shift += 2;
        out += u' ';
        for (qsizetype i = 0; i < (text.size() * 4 + 9) / 10; ++i)
            out += QString(u"xy"[i % 2]) + u'\u030C' + u'\u0323';
        return out;
    }
};

QString describe(const QWidget *w, const QString &text)
{
    return QStringLiteral("%1 \"%2\" (%3): %4")
        .arg(QLatin1String(w->metaObject()->className()),
            w->objectName().isEmpty() ? w->accessibleName() : w->objectName(), text,
            QDebug::toString(w->geometry()));
}

// Whether a text control does not show its whole text. Only a colour's name and value in its
// row end in "…" by design.
bool isCut(QWidget *w, QString &text)
{
    if (auto *label = qobject_cast<QLabel *>(w))
        return text = label->text(),
               label->wordWrap() ? label->heightForWidth(w->width()) > w->height()
                                 : label->sizeHint().width() > w->width();
    if (auto *label = qobject_cast<ElidedLabel *>(w))
        return text = label->text(),
               label->hasHeightForWidth() ? label->heightForWidth(w->width()) > w->height()
                                          : label->shownText() != text && w->objectName() != u"nameLabel"
                       && w->objectName() != u"valueLabel";
    if (auto *capsule = qobject_cast<CapsuleLabel *>(w))
        return text = capsule->text(), capsule->sizeHint().width() > w->width();
    if (auto *box = qobject_cast<QGroupBox *>(w))
        return text = box->title(), box->minimumSizeHint().width() > w->width();
    // A button laid out from labels is checked through them; a symbol (×) needs no room.
    if (auto *button = qobject_cast<QAbstractButton *>(w))
        return text = button->text(),
               !button->layout() && text.contains(QRegularExpression(QStringLiteral("\\w")))
                   && button->sizeHint().width() > w->width();
    if (auto *combo = qobject_cast<QComboBox *>(w)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        text = combo->currentText();
        return combo->fontMetrics().horizontalAdvance(text)
            > w->style()
                  ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, w)
                  .width();
    }
    return false;
}

QStringList faults(QWidget *window)
{
    QStringList found;
    if (!window->screen()->availableGeometry().contains(window->frameGeometry()))
        found << QStringLiteral("off the screen: ") + describe(window, window->windowTitle());
    QHash<QWidget *, QList<QWidget *>> texts; // by parent
    for (QWidget *w : window->findChildren<QWidget *>()) {
        QString text;
        if (!w->isVisibleTo(window) || w->size().isEmpty())
            continue;
        if (isCut(w, text))
            found << QStringLiteral("cut: ") + describe(w, text);
        if (text.isNull())
            continue; // not a text control
        QWidget *parent = w->parentWidget();
        // The content of a scrolling area is larger than its viewport on purpose.
        if (parent->objectName() != u"qt_scrollarea_viewport" && !parent->rect().contains(w->geometry()))
            found << QStringLiteral("outside its parent: ") + describe(w, text);
        for (QWidget *sibling : texts.value(parent))
            if (sibling->geometry().intersects(w->geometry()))
                found << QStringLiteral("overlaps %1: %2").arg(describe(sibling, {}), describe(w, text));
        texts[parent] << w;
    }
    return found;
}

// The dialog a call just opened (one at a time: each is closed after its check).
QWidget *dialog()
{
    QWidget *shown = nullptr;
    (void)QTest::qWaitFor([&] {
        for (QWidget *w : QApplication::topLevelWidgets())
            shown = w->isVisible() && w->inherits("QDialog") ? w : shown;
        return shown;
    });
    return shown;
}

} // namespace

TEST(PseudoLayout, EveryScreenHoldsItsTexts)
{
    PseudoTranslator pseudo;
    const QString language = qEnvironmentVariable("VANTLE_TEST_LANGUAGE"); // en: the source texts
    if (language.isEmpty())
        QCoreApplication::installTranslator(&pseudo);
    else
        ASSERT_TRUE(language == u"en" || !installTranslations({ language }).isEmpty())
            << language.toStdString();
    TempSettings settings;
    SettingsViewModel::registerDefaults(*settings.store);
    FakeHistoryFacilities f;
    ColorListViewModel model(*settings.store, f.sampler, f.clipboard, f.confirmation, f.dialogs);
    for (int i = 0; i < 8; ++i) {
        model.pickColor();
        f.sampler.finish(i / 8.0, 0.4, 0.7);
    }
    model.togglePin(model.colors().first());
    FakeShortcutBackend backend;
    HotkeyManager hotkeys(*settings.store, backend);
    FakeLoginItemService loginItems;
    QtUpdateNetwork network;
    FakeUpdateInterface updateUi;
    UpdaterController updater(*settings.store, network, updateUi, { .name = "Vantle", .version = "1.0" });
    SettingsWindow settingsWindow(*settings.store, hotkeys, loginItems, updater, &model);
    FileExportDialogs exportDialogs;
    DialogUpdateInterface updates;
    CopyHud hud([] { return true; }, true);
    const AppcastItem update {
        .version = "142", .displayVersion = "1.4", .releaseNotes = "<ul><li>Faster</li></ul>"
    };
    std::unique_ptr<ColorListView> popup;
    const auto openPopup = [&] {
        popup = std::make_unique<ColorListView>(
            model, *settings.store, [] {}, [] {});
        // Under the tray at the top of a 1280 × 800 screen, with the room the popup has there.
        popup->move(900, 30);
        popup->setHeightLimit(640);
        return popup->show(), popup.get();
    };
    const auto settingsPage = [&](int tab) {
        settingsWindow.open();
        return settingsWindow.view()->setSelectedTab(tab), settingsWindow.view()->window();
    };
    const auto welcome = [&](bool confirmation) {
        auto *window = new OnboardingWindow(
            *settings.store, [] {}, false);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->present();
        if (confirmation)
            window->view()->getStarted();
        const auto last
            = confirmation ? OnboardingView::Step::Button2Visible : OnboardingView::Step::ButtonVisible;
        if (qEnvironmentVariableIsSet("VANTLE_TEST_SHOTS")) // the picture once everything has come in
            (void)QTest::qWaitFor([&] { return window->view()->progress(last) >= 1; }, 8000);
        // Its texts are painted: the buttons, measured from their texts, stay inside.
        EXPECT_TRUE(QRectF(window->view()->rect()).contains(window->view()->startUsingButtonRect()));
        EXPECT_TRUE(QRectF(window->view()->rect()).contains(window->view()->getStartedButtonRect()));
        return window;
    };
    const struct {
        const char *screen;
        std::function<QWidget *()> open;
    } screens[] = {
        { "popup", openPopup },
        { "detail and contrast", [&] { return popup->openColor(model.colors().at(1)), popup.get(); } },
        { "rename",
            [&] { return popup->closeDetail(), popup->openRenameSheet(model.colors()[0]), popup.get(); } },
        { "general settings", [&] { return settingsPage(SettingsView::generalTab); } },
        { "about", [&] { return settingsPage(SettingsView::aboutTab); } },
        { "more", [&] { return settingsPage(SettingsView::moreTab); } },
        { "reduce history", [&] { return settingsWindow.view()->requestHistoryLimit(2), dialog(); } },
        { "export failed", [&] { return exportDialogs.showExportFailed("Disk full"), dialog(); } },
        { "up to date", [&] { return updates.showUpToDate("Vantle", "1.0"), dialog(); } },
        { "update offer",
            [&] { return updates.askAboutUpdate(update, "Vantle", "1.0", [](auto) {}), dialog(); } },
        { "download", [&] { return updates.downloadStarted(update, [] {}), dialog(); } },
        { "update failed", [&] { return updates.showDownloadFailed("No network"), dialog(); } },
        { "downloaded",
            [&] { return updates.showDownloadReady(update, "/tmp/Vantle.deb", true), dialog(); } },
        { "copy capsule",
            [&] {
                return model.copyColor(model.colors()[0]), hud.showHUD(f.confirmation.messages.last()),
                       hud.currentWindow();
            } },
        { "welcome", [&] { return welcome(false); } },
        { "welcome done", [&] { return welcome(true); } },
        { "empty popup",
            [&] {
                return model.clearHistory(), model.togglePin(model.colors()[0]), model.clearHistory(),
                       openPopup();
            } },
    };
    for (const auto &s : screens) {
        SCOPED_TRACE(s.screen);
        QWidget *window = s.open();
        ASSERT_TRUE(window && QTest::qWaitForWindowExposed(window, 20000));
        QApplication::processEvents(); // the layouts a screen change asked for
        // VANTLE_TEST_SHOTS=DIR keeps a picture of each screen (once faded in) for a person to look at.
        if (const QString shots = qEnvironmentVariable("VANTLE_TEST_SHOTS"); !shots.isEmpty()) {
            (void)QTest::qWaitFor([&] {
                const QList<QWidget *> all = window->findChildren<QWidget *>();
                return std::none_of(all.begin(), all.end(), [](QWidget *w) { return w->graphicsEffect(); });
            });
            window->repaint();
            window->screen()->grabWindow(0).save(
                shots + u'/' + QLatin1String(s.screen) + QStringLiteral(".png"));
        }
        EXPECT_EQ(faults(window), QStringList());
        if (auto *box = qobject_cast<QDialog *>(window))
            box->reject();
        else if (window != popup.get() && window != settingsWindow.view()->window())
            window->close();
    }
}
