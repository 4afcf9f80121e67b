// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window's General page: format, shortcuts, the tray dot, launch at login and the
// history limit.
#include "screens/SettingsView.h"

#include "history/ColorListViewModel.h"
#include "hotkeys/HotkeyManager.h"
#include "hotkeys/HotkeyRecorderView.h"
#include "model/ColorFormat.h"
#include "screens/SettingsWidgets.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

using namespace SettingsWidgets;

namespace {

constexpr std::array<qint64, 3> standardHistoryLimits = { 20, 50, 100 };

} // namespace

QWidget *SettingsView::makeGeneralPage()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(6);

    const auto section = [layout](const QString &title) {
        auto *box = new QGroupBox(title);
        layout->addWidget(box);
        return box;
    };
    // Compact sections, so the whole page fits the window without scrolling.
    const auto compact = [](QLayout *inner) {
        inner->setContentsMargins(10, 6, 10, 6);
        return inner;
    };
    const auto formFor = [](QGroupBox *box) {
        auto *form = new QFormLayout(box);
        form->setContentsMargins(10, 6, 10, 6);
        form->setVerticalSpacing(6);
        form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        form->setRowWrapPolicy(QFormLayout::DontWrapRows);
        return form;
    };

    // Color Format
    m_formatPicker = new QComboBox;
    m_formatPicker->setAccessibleName(tr("Default format"));
    for (const ColorFormat format : allColorFormats)
        m_formatPicker->addItem(formatLabel(format));
    connect(m_formatPicker, &QComboBox::activated, this, [this](int index) {
        if (index >= 0 && index < int(allColorFormats.size()))
            m_store.setString(PreferenceKeys::colorFormat, rawValue(allColorFormats[size_t(index)]));
    });
    formFor(section(tr("Color Format")))->addRow(tr("Default format"), m_formatPicker);

    // Keyboard Shortcuts: a new shortcut takes effect by registering both again; while one is
    // being recorded the manager lets go of its grabs so the press reaches the recorder.
    const auto reregister = [this] { m_hotkeyManager.reregisterAll(); };
    const auto suspend = [this](bool isRecording) { m_hotkeyManager.setSuspended(isRecording); };
    const auto clearIcon
        = [](const QColor &color) { return Symbols::icon(QStringLiteral("xmark.circle.fill"), 14, color); };
    m_pickRecorder = new HotkeyRecorderView(tr("Pick color"), m_store, PreferenceKeys::pickKeyCode,
        PreferenceKeys::pickModifiers, PreferenceKeys::pickKeyChar, reregister, clearIcon);
    m_pickRecorder->setOnRecordingChanged(suspend);
    m_popoverRecorder = new HotkeyRecorderView(tr("Toggle popup"), m_store, PreferenceKeys::popoverKeyCode,
        PreferenceKeys::popoverModifiers, PreferenceKeys::popoverKeyChar, reregister, clearIcon);
    m_popoverRecorder->setOnRecordingChanged(suspend);
    // The clear button keeps its place while hidden, so both fields end at the same edge.
    for (HotkeyRecorderView *recorder : { m_pickRecorder, m_popoverRecorder }) {
        QSizePolicy policy = recorder->clearButton()->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        recorder->clearButton()->setSizePolicy(policy);
    }
    auto *shortcuts = compact(new QVBoxLayout(section(tr("Keyboard Shortcuts"))));
    shortcuts->addWidget(m_pickRecorder);
    shortcuts->addWidget(m_popoverRecorder);
    if (m_hotkeyManager.areShortcutsKeptByDesktop()) {
        auto *note = secondaryLabel(
            tr("On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard."), 11);
        note->setWordWrap(true);
        shortcuts->addWidget(note);
    }

    // Tray (the panel's words on a Linux desktop)
    m_colorDotToggle = new QCheckBox(tr("Show colored dot for last picked color"));
    connect(m_colorDotToggle, &QCheckBox::clicked, this,
        [this](bool on) { m_store.setBool(PreferenceKeys::showColorDot, on); });
    compact(new QVBoxLayout(section(tr("Tray Icon"))))->addWidget(m_colorDotToggle);

    // General: the preference is written first, then the login item follows; a refused change
    // rewrites the preference to the real state, and the toggle follows the store.
    m_launchAtLoginToggle = new QCheckBox(tr("Launch at login"));
    connect(m_launchAtLoginToggle, &QCheckBox::clicked, this, [this](bool on) {
        m_store.setBool(PreferenceKeys::launchAtLogin, on);
        LaunchAtLogin::applyLaunchAtLogin(m_store, m_loginItems, on);
    });
    compact(new QVBoxLayout(section(tr("General"))))->addWidget(m_launchAtLoginToggle);

    // Data
    m_historyLimitPicker = new QComboBox;
    m_historyLimitPicker->setAccessibleName(tr("History limit"));
    connect(m_historyLimitPicker, &QComboBox::activated, this,
        [this](int index) { requestHistoryLimit(m_historyLimitPicker->itemData(index).toLongLong()); });
    m_clearHistoryButton = new QPushButton(tr("Clear History"));
    QPalette red = m_clearHistoryButton->palette();
    red.setColor(QPalette::ButtonText, Theme::destructive(red));
    m_clearHistoryButton->setPalette(red);
    connect(m_clearHistoryButton, &QPushButton::clicked, this, [this] {
        if (m_viewModel)
            m_viewModel->clearHistory();
    });
    QLabel *caption = secondaryLabel(tr("Pinned colors will be preserved."), 11);
    //: Heading of the settings about the stored history
    QFormLayout *data = formFor(section(tr("Data")));
    data->addRow(tr("History limit"), m_historyLimitPicker);
    data->addRow(m_clearHistoryButton);
    data->addRow(caption);
    data->setAlignment(m_clearHistoryButton, Qt::AlignLeft);

    layout->addStretch(1);

    for (const QString &key : { PreferenceKeys::colorFormat, PreferenceKeys::showColorDot,
             PreferenceKeys::launchAtLogin, PreferenceKeys::historyLimit })
        showStoredValue(key);
    return scrolling(content);
}

void SettingsView::showStoredValue(const QString &key)
{
    if (key == PreferenceKeys::colorFormat) {
        const ColorFormat format = SettingsViewModel::currentFormat(m_store);
        m_formatPicker->setCurrentIndex(
            int(std::find(allColorFormats.begin(), allColorFormats.end(), format) - allColorFormats.begin()));
    } else if (key == PreferenceKeys::showColorDot) {
        m_colorDotToggle->setChecked(m_store.boolForKey(key));
    } else if (key == PreferenceKeys::launchAtLogin) {
        m_launchAtLoginToggle->setChecked(m_store.boolForKey(key));
    } else if (key == PreferenceKeys::historyLimit) {
        showHistoryLimit();
    }
}

void SettingsView::showHistoryLimit()
{
    // The three standard limits, plus the stored one in its place when it is none of them
    // (written by hand or by an older version), so the picker never shows a wrong value.
    const qint64 stored = m_store.integerForKey(PreferenceKeys::historyLimit);
    QList<qint64> limits(standardHistoryLimits.begin(), standardHistoryLimits.end());
    if (!limits.contains(stored)) {
        limits.append(stored);
        std::sort(limits.begin(), limits.end());
    }
    m_historyLimitPicker->clear();
    for (const qint64 limit : limits)
        m_historyLimitPicker->addItem(QString::number(limit), limit);
    m_historyLimitPicker->setCurrentIndex(int(limits.indexOf(stored)));
}

void SettingsView::requestHistoryLimit(qint64 limit)
{
    const qint64 count = m_viewModel ? m_viewModel->recentColors().size() : 0;
    if (limit >= count) {
        m_store.setInteger(PreferenceKeys::historyLimit, limit);
        return;
    }
    m_colorsToRemoveCount = count - limit;
    m_pendingHistoryLimit = limit;
    // Until Continue the limit is the stored one, and so is what the picker behind the alert
    // shows (the person's choice has already moved it).
    showHistoryLimit();

    auto *alert = new QMessageBox(this);
    alert->setIcon(QMessageBox::Warning);
    alert->setWindowTitle(tr("Reduce History"));
    alert->setText(tr("Reduce History"));
    alert->setInformativeText(m_colorsToRemoveCount == 1
            ? tr("This will remove the oldest 1 color.")
            : tr("This will remove the oldest %n colors.", nullptr, int(m_colorsToRemoveCount)));
    QPushButton *continueButton = alert->addButton(tr("Continue"), QMessageBox::DestructiveRole);
    QPushButton *cancelButton = alert->addButton(tr("Cancel"), QMessageBox::RejectRole);
    alert->setDefaultButton(cancelButton);
    alert->setEscapeButton(cancelButton);
    connect(alert, &QDialog::finished, this, [this, alert, continueButton] {
        if (alert->clickedButton() == continueButton)
            confirmHistoryReduction();
        // Cancel, Escape or closing the box: the limit stays as it was.
        m_pendingHistoryLimit.reset();
        m_colorsToRemoveCount = 0;
        showHistoryLimit();
    });
    m_dialogs.open(alert);
}

void SettingsView::confirmHistoryReduction()
{
    if (!m_pendingHistoryLimit)
        return;
    const qint64 limit = *m_pendingHistoryLimit;
    m_pendingHistoryLimit.reset();
    m_store.setInteger(PreferenceKeys::historyLimit, limit);
    if (m_viewModel)
        m_viewModel->trimHistory(limit);
}
