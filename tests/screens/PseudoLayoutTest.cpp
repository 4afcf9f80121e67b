// SPDX-License-Identifier: GPL-3.0-or-later
// Every screen on a real X server, in a language 40% longer than English with accents (or
// VANTLE_TEST_LANGUAGE, a shipped one): no text cut, outside its parent, off the screen or overlapped.
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

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Letters carry a circumflex above and a dot below, and a tail of accented letters makes the
// text 40% longer; placeholders, colour texts, markup and entities stay as they are.
struct PseudoTranslator : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        if (text == u"QT_LAYOUT_DIRECTION")
            return u"LTR"_s;
        static const QRegularExpression parts(
            QStringLiteral(R"(%\d|%n|#[0-9A-Fa-f]{6}|<[^>]*>|&\w+;|(\p{L}))"));
        QString out = text + u' ';
        for (qsizetype shift = 0; const QRegularExpressionMatch &m : parts.globalMatch(text))
            if (m.capturedLength(1))
                out.insert(m.capturedEnd() + shift, u"\u0302\u0323"), shift += 2;
        for (qsizetype i = 0; i < (text.size() * 4 + 9) / 10; ++i)
            out += QString(u"xy"[i % 2]) + u'\u030C' + u'\u0323';
        return out;
    }
};

// Whether a text control does not show its whole text. A colour's name and value in its row end in
// "…" by design; a button laid out from labels is checked through them; a symbol (×) needs no room.
static bool isCut(QWidget *w, QString &text)
{
    const int width = w->width();
    if (auto *label = qobject_cast<QLabel *>(w))
        return text = label->text(),
               label->wordWrap() ? label->heightForWidth(width) > w->height()
                                 : label->sizeHint().width() > width;
    if (auto *label = qobject_cast<ElidedLabel *>(w))
        return text = label->text(),
               label->hasHeightForWidth() ? label->heightForWidth(width) > w->height()
                                          : label->shownText() != text && w->objectName() != u"nameLabel"
                       && w->objectName() != u"valueLabel";
    if (auto *capsule = qobject_cast<CapsuleLabel *>(w))
        return text = capsule->text(), capsule->sizeHint().width() > width;
    if (auto *box = qobject_cast<QGroupBox *>(w))
        return text = box->title(), box->minimumSizeHint().width() > width;
    if (auto *button = qobject_cast<QAbstractButton *>(w))
        return text = button->text(),
               !button->layout() && text.contains(QRegularExpression(u"\\w"_s))
                   && button->sizeHint().width() > width;
    auto *combo = qobject_cast<QComboBox *>(w);
    if (!combo)
        return false;
    QStyleOptionComboBox option;
    option.initFrom(combo);
    text = combo->currentText();
    return combo->fontMetrics().horizontalAdvance(text)
        > w->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, w).width();
}

static QStringList faults(QWidget *window)
{
    QStringList found;
    const auto describe = [](const QWidget *w, const QString &text) {
        return u"%1 %2 \"%3\""_s.arg(QLatin1String(w->metaObject()->className()), w->objectName(), text);
    };
    if (!window->screen()->availableGeometry().contains(window->frameGeometry()))
        found << u"off the screen: "_s + describe(window, window->windowTitle());
    QHash<QWidget *, QList<QWidget *>> texts; // by parent
    for (QWidget *w : window->findChildren<QWidget *>()) {
        QString text;
        if (!w->isVisibleTo(window) || w->size().isEmpty())
            continue;
        if (isCut(w, text))
            found << u"cut: "_s + describe(w, text);
        if (text.isNull())
            continue; // not a text control
        QWidget *parent = w->parentWidget();
        // The content of a scrolling area is larger than its viewport on purpose.
        if (parent->objectName() != u"qt_scrollarea_viewport" && !parent->rect().contains(w->geometry()))
            found << u"outside its parent: "_s + describe(w, text);
        for (QWidget *sibling : texts.value(parent))
            if (sibling->geometry().intersects(w->geometry()))
                found << u"overlaps %1: %2"_s.arg(describe(sibling, {}), describe(w, text));
        texts[parent] << w;
    }
    return found;
}

TEST(PseudoLayout, EveryScreenHoldsItsTexts)
{
    PseudoTranslator pseudo;
    const QString language = qEnvironmentVariable("VANTLE_TEST_LANGUAGE"); // en: the source texts
    ASSERT_TRUE(language.isEmpty() ? QCoreApplication::installTranslator(&pseudo)
                                   : language == u"en" || !installTranslations({ language }).isEmpty());
    TempSettings settings;
    SettingsViewModel::registerDefaults(*settings.store);
    FakeHistoryFacilities f;
    ColorListViewModel model(*settings.store, f.sampler, f.clipboard, f.confirmation, f.dialogs);
    for (int i = 0; i < 8; ++i)
        model.pickColor(), f.sampler.finish(i / 8.0, 0.4, 0.7);
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
    const auto nothing = [] {};
    std::unique_ptr<ColorListView> popup;
    const auto openPopup = [&] {
        popup = std::make_unique<ColorListView>(model, *settings.store, nothing, nothing);
        popup->move(900, 30); // under the tray at the top of a 1280 × 800 screen, with the room it has there
        return popup->setHeightLimit(640), popup->show(), popup.get();
    };
    const auto welcome = [&](bool confirmation) {
        auto *window = new OnboardingWindow(*settings.store, nothing, false);
        window->setAttribute(Qt::WA_DeleteOnClose), window->present();
        if (confirmation)
            window->view()->getStarted();
        // Its texts are painted: the buttons, measured from their texts, stay inside.
        EXPECT_TRUE(QRectF(window->view()->rect()).contains(window->view()->startUsingButtonRect()));
        EXPECT_TRUE(QRectF(window->view()->rect()).contains(window->view()->getStartedButtonRect()));
        return window;
    };
    // In this order, each reached from the one before; a dialog (nullptr) is the one just shown.
    const auto check = [&](const char *screen, QWidget *window) {
        SCOPED_TRACE(screen);
        for (QWidget *w : QApplication::topLevelWidgets())
            window = !window && w->isVisible() && w->inherits("QDialog") ? w : window;
        ASSERT_TRUE(window && QTest::qWaitForWindowExposed(window, 20000));
        QApplication::processEvents(); // the layouts a screen change asked for
        EXPECT_EQ(faults(window), QStringList());
        if (window != popup.get() && window != settingsWindow.view()->window())
            window->close();
    };
    check("popup", openPopup());
    check("detail and contrast", (popup->openColor(model.colors().at(1)), popup.get()));
    check("rename", (popup->closeDetail(), popup->openRenameSheet(model.colors()[0]), popup.get()));
    settingsWindow.open();
    SettingsView *page = settingsWindow.view();
    check("general settings", (page->setSelectedTab(SettingsView::generalTab), page->window()));
    check("about", (page->setSelectedTab(SettingsView::aboutTab), page->window()));
    check("more", (page->setSelectedTab(SettingsView::moreTab), page->window()));
    check("reduce history", (page->requestHistoryLimit(2), nullptr));
    check("export failed", (exportDialogs.showExportFailed("Disk full"), nullptr));
    check("up to date", (updates.showUpToDate("Vantle", "1.0"), nullptr));
    check("update offer", (updates.askAboutUpdate(update, "Vantle", "1.0", [](auto) {}), nullptr));
    check("download", (updates.downloadStarted(update, [] {}), nullptr));
    check("update failed", (updates.showDownloadFailed("No network"), nullptr));
    check("downloaded", (updates.showDownloadReady(update, "/tmp/Vantle.deb", true), nullptr));
    model.copyColor(model.colors()[0]);
    check("copy capsule", (hud.showHUD(f.confirmation.messages.last()), hud.currentWindow()));
    check("welcome", welcome(false));
    check("welcome done", welcome(true));
    model.clearHistory(), model.togglePin(model.colors()[0]), model.clearHistory();
    check("empty popup", openPopup());
}
