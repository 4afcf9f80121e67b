// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/SettingsWindow.h"
#include "platform/network/QtUpdateNetwork.h"
#include "screens/SettingsView.h"

#include "ModalAnswer.h"

#include "history/ColorListViewModel.h"
#include "hotkeys/HotkeyManager.h"
#include "hotkeys/HotkeyRecorderView.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"
#include "support/Fakes.h"
#include "support/TempSettings.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace PreferenceKeys;

namespace {

// Everything the application shell hands the settings window, with stand-ins for the desktop's.
struct Shell : FakeHistoryFacilities {
    Shell()
    {
        SettingsViewModel::registerDefaults(store());
        model = std::make_unique<ColorListViewModel>(store(), sampler, clipboard, confirmation, dialogs);
        updater = std::make_unique<UpdaterController>(
            store(), network, updateUi, UpdateBundle { .name = u"Vantle"_s, .version = u"1.0"_s });
        window = std::make_unique<SettingsWindow>(store(), hotkeys, loginItems, *updater, model.get());
    }
    SettingsStore &store() { return *settings.store; }

    void pick(int count, bool pinned = false)
    {
        for (int i = 0; i < count; ++i) {
            model->pickColor(), sampler.finish(i / 255.0, pinned ? 1.0 : 0.0, 0.5);
            if (pinned)
                model->togglePin(model->colors().first());
        }
    }

    SettingsView *open() { return window->open(), window->view(); }

    TempSettings settings;
    FakeShortcutBackend backend;
    HotkeyManager hotkeys { *settings.store, backend };
    FakeLoginItemService loginItems;
    QtUpdateNetwork network;
    FakeUpdateInterface updateUi;
    std::unique_ptr<ColorListViewModel> model;
    std::unique_ptr<UpdaterController> updater;
    std::unique_ptr<SettingsWindow> window;
};

void choose(QComboBox *picker, const QString &text)
{
    const int index = picker->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    picker->setCurrentIndex(index);
    Q_EMIT picker->activated(index);
}

} // namespace

TEST(SettingsView, LoweringTheHistoryLimitAsksBeforeRemovingColors)
{
    struct Row {
        const char *what;
        int recent;
        qint64 limit;
        const char *choice;
        const char *answer; // nullptr: no box expected
        const char *message;
        qint64 storedLimit;
        int recentAfter;
    };
    const Row rows[] = {
        { "ten, continue", 30, 50, "20", "Continue", "This will remove the oldest 10 colors.", 20, 20 },
        { "ten, escape cancels", 30, 50, "20", "Escape", "This will remove the oldest 10 colors.", 50, 30 },
        { "one is singular", 21, 50, "20", "Continue", "This will remove the oldest 1 color.", 20, 20 },
        { "nothing to remove", 20, 50, "20", nullptr, nullptr, 20, 20 },
        { "raising", 30, 50, "100", nullptr, nullptr, 100, 30 },
        { "raising from a hand-written limit", 40, 40, "50", nullptr, nullptr, 50, 40 },
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        Shell shell;
        shell.store().setInteger(historyLimit, row.limit);
        shell.pick(3, true);
        shell.pick(row.recent);
        SettingsView *view = shell.open();

        ModalAnswer alert(QString::fromLatin1(row.answer ? row.answer : "Cancel"));
        QString limitBehindAlert;
        alert.whileShown = [&] { limitBehindAlert = view->historyLimitPicker()->currentText(); };
        choose(view->historyLimitPicker(), QString::fromLatin1(row.choice));
        if (row.answer) { // the alert answers itself once it is up; the choice returned at once
            EXPECT_TRUE(QTest::qWaitFor([&] { return alert.wasShown; }, 5000));
            EXPECT_TRUE(alert.texts.contains(QLatin1String(row.message)))
                << alert.texts.join(u'|').toStdString();
            EXPECT_EQ(limitBehindAlert, QString::number(row.limit)) << "not yet confirmed";
        }
        EXPECT_EQ(alert.wasShown, row.answer != nullptr);
        EXPECT_EQ(shell.store().integerForKey(historyLimit), row.storedLimit);
        EXPECT_EQ(view->historyLimitPicker()->currentText(), QString::number(row.storedLimit));
        EXPECT_EQ(shell.model->recentColors().size(), row.recentAfter);
        EXPECT_EQ(shell.model->pinnedColors().size(), 3) << "pinned colours never go";
    }
}

TEST(SettingsView, RecordedShortcutIsRegisteredWithTheDesktop)
{
    Shell shell;
    Preferences::pickShortcut.write(shell.store(), { 8, 655360 });
    shell.hotkeys.reregisterAll();
    SettingsView *view = shell.open();

    QTest::mouseClick(view->popoverRecorder()->field(), Qt::LeftButton);
    EXPECT_TRUE(shell.backend.registered.isEmpty()) << "no grab may take the press being recorded";

    QKeyEvent press(QEvent::KeyPress, Qt::Key_P, Qt::ControlModifier | Qt::AltModifier, 33, 0, 0, u"p"_s);
    QApplication::sendEvent(view->popoverRecorder()->field(), &press);

    ASSERT_EQ(shell.backend.registered.size(), 2);
    EXPECT_EQ(shell.backend.registered.last().id, HotkeyManager::popoverId);
    EXPECT_EQ(qint64(shell.backend.registered.last().keyCode), shell.store().integerForKey(popoverKeyCode));
    EXPECT_EQ(shell.backend.registered.last().modifiers, 262144 + 524288);

    // Clearing the pick shortcut releases it at once.
    QTest::mouseClick(view->pickRecorder()->clearButton(), Qt::LeftButton);
    ASSERT_EQ(shell.backend.registered.size(), 1);
    EXPECT_EQ(shell.backend.registered.first().id, HotkeyManager::popoverId);

    // The window going away in the middle of recording gives the shortcuts back.
    QTest::mouseClick(view->popoverRecorder()->field(), Qt::LeftButton);
    ASSERT_TRUE(shell.backend.registered.isEmpty());
    shell.window.reset();
    EXPECT_EQ(shell.backend.registered.size(), 1);
}
