// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/Preferences.h"

#include <QIcon>
#include <QString>
#include <QWidget>
#include <functional>

class QLabel;
class QPushButton;
class QToolButton;
class SettingsStore;

// The settings control that records one global shortcut into its three preferences (key code,
// modifiers, key text). A click on the field starts recording; the next press with Control,
// Alt or Super becomes the shortcut; Escape cancels; the clear button removes the shortcut.
//
// While recording, every key press of the application comes here and is swallowed, so it
// neither reaches the settings window nor triggers its shortcuts. onRecordingChanged tells the
// owner when recording starts and stops, so the hotkey manager can let go of its grabs
// (HotkeyManager::setSuspended) and the press being recorded reaches the application.
class HotkeyRecorderView : public QWidget {
    Q_OBJECT
public:
    // `clearIcon` draws the clear button's icon in a colour (the screens own the symbols).
    using IconMaker = std::function<QIcon(const QColor &)>;
    HotkeyRecorderView(const QString &label, SettingsStore &store, const QString &keyCodeKey,
        const QString &modifiersKey, const QString &keyCharKey, std::function<void()> onChanged,
        IconMaker clearIcon = {}, QWidget *parent = nullptr);
    ~HotkeyRecorderView() override;

    void setOnRecordingChanged(std::function<void(bool isRecording)> onRecordingChanged);
    bool isRecording() const { return m_isRecording; }

    // For tests and accessibility tools: the field and the clear button.
    QPushButton *field() const { return m_field; }
    QToolButton *clearButton() const { return m_clearButton; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void toggle();
    void startRecording();
    void stopRecording();
    void clear();
    void updateField();

    SettingsStore &m_store;
    const ShortcutPreference m_shortcut;
    std::function<void()> m_onChanged;
    IconMaker m_clearIcon;
    std::function<void(bool)> m_onRecordingChanged;
    bool m_isRecording = false;

    QLabel *m_caption;
    QPushButton *m_field;
    QToolButton *m_clearButton;
};
