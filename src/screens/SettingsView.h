// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/AsyncDialogs.h"

#include <QPointer>
#include <QWidget>
#include <optional>

class ColorListViewModel;
class HotkeyManager;
class HotkeyRecorderView;
class LoginItemService;
class QAbstractButton;
class QCheckBox;
class QComboBox;
class QPushButton;
class QStackedWidget;
class SettingsStore;
class UpdaterController;

// The content of the settings window: a tab bar over three pages. "General" edits every user
// preference and can clear the history, "About" shows the program's identity and the update
// controls, "More Brindlework" lists the maker's other applications.
//
// Every control reads and writes the settings store directly: nothing is cached here, so a
// change made elsewhere (a failed login-item change rewriting "launchAtLogin") shows at once.
// The history itself is changed only through the history model's operations. Main thread only.
class SettingsView : public QWidget {
    Q_OBJECT
public:
    enum Tab { generalTab = 0, aboutTab = 1, moreTab = 2 };

    // `viewModel` may be null: every lower limit then removes nothing and "Clear History" does
    // nothing. The others are owned by the caller and outlive the view.
    SettingsView(SettingsStore &store, HotkeyManager &hotkeyManager, LoginItemService &loginItems,
        UpdaterController &updaterController, ColorListViewModel *viewModel, QWidget *parent = nullptr);
    ~SettingsView() override;

    int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);

    // Asks first when the new limit would drop colours (the "Reduce History" box), otherwise
    // writes it at once.
    void requestHistoryLimit(qint64 limit);

    // The controls, for tests and accessibility tools.
    QComboBox *formatPicker() const { return m_formatPicker; }
    QComboBox *historyLimitPicker() const { return m_historyLimitPicker; }
    HotkeyRecorderView *pickRecorder() const { return m_pickRecorder; }
    HotkeyRecorderView *popoverRecorder() const { return m_popoverRecorder; }
    QCheckBox *colorDotToggle() const { return m_colorDotToggle; }
    QCheckBox *launchAtLoginToggle() const { return m_launchAtLoginToggle; }
    QPushButton *clearHistoryButton() const { return m_clearHistoryButton; }
    QPushButton *checkForUpdatesButton() const { return m_checkForUpdatesButton; }
    QCheckBox *automaticDownloadToggle() const { return m_automaticDownloadToggle; }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    // Escape closes the window, as it does a dialog (an open list or the recorder takes it first).
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeTabBar();
    QWidget *makeGeneralPage();
    QWidget *makeAboutPage();
    QWidget *makeMorePage();
    void confirmHistoryReduction();
    void showStoredValue(const QString &key);
    void showHistoryLimit();

    SettingsStore &m_store;
    HotkeyManager &m_hotkeyManager;
    LoginItemService &m_loginItems;
    UpdaterController &m_updaterController;
    QPointer<ColorListViewModel> m_viewModel;

    int m_selectedTab = generalTab;
    // A lower limit waiting for the user's answer, and how many colours it would remove.
    std::optional<qint64> m_pendingHistoryLimit;
    AsyncDialogs m_dialogs; // the Reduce History alert, answered without a nested event loop
    qint64 m_colorsToRemoveCount = 0;

    QList<QAbstractButton *> m_tabButtons;
    QStackedWidget *m_pages = nullptr;
    QComboBox *m_formatPicker = nullptr;
    HotkeyRecorderView *m_pickRecorder = nullptr;
    HotkeyRecorderView *m_popoverRecorder = nullptr;
    QCheckBox *m_colorDotToggle = nullptr;
    QCheckBox *m_launchAtLoginToggle = nullptr;
    QComboBox *m_historyLimitPicker = nullptr;
    QPushButton *m_clearHistoryButton = nullptr;
    QPushButton *m_checkForUpdatesButton = nullptr;
    QCheckBox *m_automaticDownloadToggle = nullptr;
};
