// SPDX-License-Identifier: GPL-3.0-or-later
// Every screen in a language 40% longer than English with accents above and below, on a real X
// server: no text cut, no control outside its window, no two texts over each other.
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
#include "services/Appcast.h"
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
        static const QRegularExpression kept(QStringLiteral(R"(%\d|%n|#[0-9A-Fa-f]{6}|<[^>]*>|&\w+;|\n)"));
        QString out;
        qsizetype from = 0;
        const auto accent = [&](QStringView part) {
            for (const QChar c : part)
                out += c.isLetter() ? QString(c) + u'\u0302' + u'\u0323' : QString(c);
        };
        for (const QRegularExpressionMatch &m : kept.globalMatch(text)) {
            accent(QStringView(text).sliced(from, m.capturedStart() - from));
            out += m.captured();
            from = m.capturedEnd();
        }
        accent(QStringView(text).sliced(from));
        out += u' ';
        for (qsizetype i = 0; i < (text.size() * 4 + 9) / 10; ++i)
            out += QString(u"xy"[i % 2]) + u'\u030C' + u'\u0323';
        return out;
    }
};

QString describe(const QWidget *w, const QString &text)
{
    return QStringLiteral("%1 \"%2\" (%3): %4")
        .arg(QString::fromLatin1(w->metaObject()->className()),
            w->objectName().isEmpty() ? w->accessibleName() : w->objectName(), text,
            QDebug::toString(w->geometry()));
}

// The faults of one window. Names in `elided` are texts that end in "…" by design (a colour's
// name and value in its row).
QStringList faults(QWidget *window, const QStringList &elided = {})
{
    QStringList found;
    const QRect screen = window->screen()->availableGeometry();
    if (!screen.contains(window->frameGeometry()))
        found << QStringLiteral("window off the screen: ") + describe(window, window->windowTitle());
    QHash<QWidget *, QList<QWidget *>> texts; // by parent
    for (QWidget *w : window->findChildren<QWidget *>()) {
        if (!w->isVisibleTo(window) || w->size().isEmpty())
            continue;
        QString text;
        bool cut = false;
        if (auto *label = qobject_cast<QLabel *>(w)) {
            text = label->text();
            cut = label->wordWrap() ? label->heightForWidth(label->width()) > label->height()
                                    : label->sizeHint().width() > label->width();
        } else if (auto *label = qobject_cast<ElidedLabel *>(w)) {
            text = label->text();
            cut = label->hasHeightForWidth()
                ? label->heightForWidth(label->width()) > label->height()
                : label->shownText() != text && !elided.contains(w->objectName());
        } else if (auto *capsule = qobject_cast<CapsuleLabel *>(w)) {
            text = capsule->text();
            cut = capsule->sizeHint().width() > capsule->width();
        } else if (auto *button = qobject_cast<QAbstractButton *>(w)) {
            text = button->text();
            // A button laid out from labels is checked through them; a symbol (×) needs no room.
            cut = !button->layout() && text.contains(QRegularExpression(QStringLiteral("\\w")))
                && button->sizeHint().width() > button->width();
        } else if (auto *combo = qobject_cast<QComboBox *>(w)) {
            text = combo->currentText();
            QStyleOptionComboBox option;
            option.initFrom(combo);
            const QRect field = combo->style()->subControlRect(
                QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
            cut = combo->fontMetrics().horizontalAdvance(text) > field.width();
        } else if (auto *box = qobject_cast<QGroupBox *>(w)) {
            text = box->title();
            cut = box->minimumSizeHint().width() > box->width();
        } else {
            continue;
        }
        if (cut)
            found << QStringLiteral("cut: ") + describe(w, text);
        QWidget *parent = w->parentWidget();
        // The content of a scrolling area is larger than its viewport on purpose.
        const bool scrolls = parent->parentWidget() && parent->objectName() == u"qt_scrollarea_viewport";
        if (!scrolls && !parent->rect().contains(w->geometry()))
            found << QStringLiteral("outside its parent: ") + describe(w, text);
        for (QWidget *sibling : texts.value(parent))
            if (sibling->geometry().intersects(w->geometry()))
                found << QStringLiteral("overlaps %1: %2").arg(describe(sibling, {}), describe(w, text));
        texts[parent] << w;
    }
    return found;
}

struct PseudoLayout : ::testing::Test, FakeHistoryFacilities {
    PseudoLayout()
    {
        // VANTLE_TEST_LANGUAGE=de runs the same checks in a shipped translation.
        const QString language = qEnvironmentVariable("VANTLE_TEST_LANGUAGE");
        if (language.isEmpty())
            QCoreApplication::installTranslator(&translator);
        else
            EXPECT_FALSE(installTranslations({ language }).isEmpty()) << language.toStdString();
        SettingsViewModel::registerDefaults(*settings.store);
        for (int i = 0; i < 8; ++i) {
            model.pickColor();
            sampler.finish(i / 8.0, 0.4, 0.7);
        }
        model.togglePin(model.colors().first());
    }
    ~PseudoLayout() override
    {
        for (QWidget *w : QApplication::topLevelWidgets())
            w->close();
    }
    // The dialog a call just opened (one at a time: each is closed after its check).
    static QWidget *modal()
    {
        QDialog *shown = nullptr;
        (void)QTest::qWaitFor([&] {
            for (QWidget *w : QApplication::topLevelWidgets())
                if (w->isVisible() && qobject_cast<QDialog *>(w))
                    shown = qobject_cast<QDialog *>(w);
            return shown != nullptr;
        });
        return shown;
    }

    PseudoTranslator translator;
    TempSettings settings;
    ColorListViewModel model { *settings.store, sampler, clipboard, confirmation, dialogs };
    FakeShortcutBackend backend;
    HotkeyManager hotkeys { *settings.store, backend };
    FakeLoginItemService loginItems;
    QtUpdateNetwork network;
    FakeUpdateInterface updateUi;
    UpdaterController updater { *settings.store, network, updateUi,
        UpdateBundle { .name = QStringLiteral("Vantle"), .version = QStringLiteral("1.0") } };
};

} // namespace

TEST_F(PseudoLayout, EveryScreenHoldsItsTexts)
{
    ColorListView *popup = nullptr;
    SettingsWindow settingsWindow(*settings.store, hotkeys, loginItems, updater, &model);
    FileExportDialogs exportDialogs;
    DialogUpdateInterface updateDialogs;
    CopyHud hud([] { return true; }, true);
    const AppcastItem update { .version = QStringLiteral("142"),
        .displayVersion = QStringLiteral("1.4"),
        .releaseNotes = QStringLiteral("<ul><li>Faster picking</li></ul>") };
    const auto openPopup = [&](bool empty) -> QWidget * {
        for (const PickedColor &color : empty ? model.colors() : QList<PickedColor>())
            model.deleteColor(color);
        popup = new ColorListView(
            model, *settings.store, [] {}, [] {});
        popup->setAttribute(Qt::WA_DeleteOnClose);
        popup->setHeightLimit(640); // the room beside the tray icon on a 1280 × 800 screen
        popup->show();
        return popup;
    };
    const auto settingsPage = [&](int tab) -> QWidget * {
        settingsWindow.open();
        settingsWindow.view()->setSelectedTab(tab);
        return settingsWindow.view()->window();
    };
    const struct {
        const char *screen;
        std::function<QWidget *()> open;
    } screens[] = {
        { "popup", [&] { return openPopup(false); } },
        { "detail and contrast", [&] { return popup->openColor(model.colors().at(1)), popup; } },
        { "rename",
            [&] { return popup->closeDetail(), popup->openRenameSheet(model.colors().first()), popup; } },
        { "general settings", [&] { return settingsPage(SettingsView::generalTab); } },
        { "about", [&] { return settingsPage(SettingsView::aboutTab); } },
        { "more", [&] { return settingsPage(SettingsView::moreTab); } },
        { "reduce history", [&] { return settingsWindow.view()->requestHistoryLimit(2), modal(); } },
        { "export failed",
            [&] { return exportDialogs.showExportFailed(QStringLiteral("Disk full")), modal(); } },
        { "up to date",
            [&] { return updateDialogs.showUpToDate(QStringLiteral("Vantle"), "1.0"), modal(); } },
        { "update offer",
            [&] { return updateDialogs.askAboutUpdate(update, "Vantle", "1.0", [](auto) {}), modal(); } },
        { "download", [&] { return updateDialogs.downloadStarted(update, [] {}), modal(); } },
        { "update failed",
            [&] { return updateDialogs.showDownloadFailed(QStringLiteral("No network")), modal(); } },
        { "downloaded",
            [&] { return updateDialogs.showDownloadReady(update, "/tmp/Vantle.deb", true), modal(); } },
        { "copy capsule",
            [&] {
                return model.copyColor(model.colors().first()), hud.showHUD(confirmation.messages.last()),
                       hud.currentWindow();
            } },
        { "empty popup", [&] { return openPopup(true); } },
    };
    for (const auto &s : screens) {
        SCOPED_TRACE(s.screen);
        QWidget *window = s.open();
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        QApplication::processEvents();
        // VANTLE_TEST_SHOTS=DIR keeps a picture of each screen, for a person to look at.
        if (const QString shots = qEnvironmentVariable("VANTLE_TEST_SHOTS"); !shots.isEmpty()) {
            // Once a screen that fades in has its full colour.
            (void)QTest::qWaitFor([&] {
                const QList<QWidget *> all = window->findChildren<QWidget *>();
                return std::none_of(all.begin(), all.end(), [](QWidget *w) { return w->graphicsEffect(); });
            });
            window->screen()->grabWindow(0).save(
                shots + u'/' + QLatin1String(s.screen) + QStringLiteral(".png"));
        }
        EXPECT_EQ(
            faults(window, { QStringLiteral("nameLabel"), QStringLiteral("valueLabel") }), QStringList());
        if (auto *dialog = qobject_cast<QDialog *>(window))
            dialog->reject();
        else if (window == hud.currentWindow())
            window->close();
    }

    // The welcome window paints its texts: the buttons it measured stay inside it.
    OnboardingWindow welcome(
        *settings.store, [] {}, false);
    welcome.present();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&welcome));
    EXPECT_EQ(faults(&welcome), QStringList());
    EXPECT_TRUE(QRectF(welcome.view()->rect()).contains(welcome.view()->getStartedButtonRect()));
    EXPECT_TRUE(QRectF(welcome.view()->rect()).contains(welcome.view()->startUsingButtonRect()));
}
