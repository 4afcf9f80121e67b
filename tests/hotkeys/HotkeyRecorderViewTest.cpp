// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/HotkeyRecorderView.h"

#include "services/PreferenceKeys.h"
#include "support/TempSettings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace PreferenceKeys;

namespace {

// A settings pane with the recorder and a text field that would take any key that leaks.
struct Pane {
    Pane()
    {
        Preferences::pickShortcut.write(*settings.store, { 7, 262144, u"X"_s });
        recorder = new HotkeyRecorderView(
            u"Pick color"_s, *settings.store, pickKeyCode, pickModifiers, pickKeyChar, [this] { ++changes; },
            {}, &window);
        recorder->setOnRecordingChanged([this](bool isRecording) { recordingChanges << isRecording; });
        sibling = new QLineEdit(&window);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(recorder);
        layout->addWidget(sibling);
        window.show();
        sibling->setFocus();
    }

    void startRecording()
    {
        QTest::mouseClick(recorder->field(), Qt::LeftButton);
        ASSERT_TRUE(recorder->isRecording());
    }

    // A press as the X11 platform delivers it: the native scan code is the X key code.
    void press(int qtKey, Qt::KeyboardModifiers modifiers, quint32 xKeycode, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, qtKey, modifiers, xKeycode, 0, 0, text);
        QApplication::sendEvent(sibling, &event);
    }

    StoredShortcut stored() const { return Preferences::pickShortcut.read(*settings.store); }
    QString fieldText() const { return recorder->field()->text(); }

    TempSettings settings;
    QWidget window;
    HotkeyRecorderView *recorder = nullptr;
    QLineEdit *sibling = nullptr;
    int changes = 0;
    QList<bool> recordingChanges;
};

} // namespace

TEST(HotkeyRecorderView, AcceptedPressesStoreThePhysicalKeyAndTheTextItTypes)
{
    struct Row {
        int qtKey;
        Qt::KeyboardModifiers modifiers;
        quint32 xKeycode;
        const char *text;
        StoredShortcut stored;
        const char *display;
    };
    // k stored upper case; the French A key, typing Q; the keypad flag dropped; keypad 1 with
    // Num Lock off; F13, which the keymap calls Tools.
    const Row rows[] = {
        { Qt::Key_K, Qt::AltModifier, 45, "k", { 40, 524288, "K" }, "Alt+K" },
        { Qt::Key_Q, Qt::ControlModifier, 38, "\x11", { 0, 262144, "Q" }, "Ctrl+Q" },
        { Qt::Key_X, Qt::AltModifier | Qt::KeypadModifier, 53, "x", { 7, 524288, "X" }, "Alt+X" },
        { Qt::Key_End, Qt::AltModifier | Qt::KeypadModifier, 87, "", { 83, 524288, "1" }, "Alt+1" },
        { Qt::Key_Tools, Qt::ControlModifier, 191, "", { 105, 262144, "F13" }, "Ctrl+F13" },
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.display);
        Pane pane;
        pane.startRecording();
        pane.press(row.qtKey, row.modifiers, row.xKeycode, QString::fromLatin1(row.text));
        EXPECT_EQ(pane.stored(), row.stored);
        EXPECT_EQ(pane.changes, 1);
        EXPECT_EQ(pane.fieldText(), QLatin1String(row.display));
        EXPECT_EQ(pane.sibling->text(), QString()) << "the press was swallowed";
        EXPECT_EQ(pane.recordingChanges, QList<bool>({ true, false }));
    }
}

// Presses without Control, Alt or Super are swallowed and ignored; each way out of recording
// keeps the shortcut, and keys reach the window again.
TEST(HotkeyRecorderView, PlainPressesAreIgnoredAndEscapeSecondClickAndHidingStopWithoutAChange)
{
    const std::function<void(Pane &)> stops[] = {
        [](Pane &pane) { QTest::keyClick(pane.sibling, Qt::Key_Escape); },
        [](Pane &pane) { pane.press(Qt::Key_Escape, Qt::AltModifier, 9, QString()); },
        [](Pane &pane) { QTest::mouseClick(pane.recorder->field(), Qt::LeftButton); },
        [](Pane &pane) { pane.window.hide(); },
    };
    int index = 0;
    for (const auto &stop : stops) {
        SCOPED_TRACE(index++);
        Pane pane;
        pane.startRecording();
        QTest::keyClick(pane.sibling, Qt::Key_A, Qt::ShiftModifier);
        pane.press(Qt::Key_A, Qt::NoModifier, 38, u"a"_s);
        pane.press(Qt::Key_Alt, Qt::AltModifier, 64, QString()); // Alt on its own is not a key
        EXPECT_EQ(pane.fieldText(), u"Press shortcut…"_s);
        stop(pane);
        EXPECT_EQ(pane.stored(), (StoredShortcut { 7, 262144, u"X"_s }));
        EXPECT_EQ(pane.fieldText(), u"Ctrl+X"_s);
        EXPECT_EQ(pane.changes, 0);
        EXPECT_EQ(pane.recordingChanges, QList<bool>({ true, false }));
        QTest::keyClick(pane.sibling, Qt::Key_A);
        EXPECT_EQ(pane.sibling->text(), u"a"_s);
    }
}

TEST(HotkeyRecorderView, ClearWritesNoShortcutAndKeepsRecording)
{
    Pane pane;
    EXPECT_TRUE(pane.recorder->clearButton()->isVisible());
    pane.startRecording();
    pane.recorder->clearButton()->click();
    EXPECT_EQ(pane.stored(), StoredShortcut {});
    EXPECT_EQ(pane.settings.store->stringForKey(pickKeyChar), QString()) << "written, not removed";
    EXPECT_EQ(pane.changes, 1);
    EXPECT_TRUE(pane.recorder->isRecording());

    QTest::keyClick(pane.sibling, Qt::Key_Escape);
    EXPECT_EQ(pane.fieldText(), u"None - click to set"_s);
    EXPECT_FALSE(pane.recorder->clearButton()->isVisible());
    EXPECT_EQ(pane.recorder->field()->toolTip(), QString());
}
