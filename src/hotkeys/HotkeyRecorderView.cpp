// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/HotkeyRecorderView.h"

#include "hotkeys/KeyCodes.h"
#include "services/SettingsStore.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

// What the key types without Control, Alt or Super, upper-cased: follows the layout, so a
// French keyboard shows the letter printed on its key. Keys that type nothing printable get a
// name from the key table, else Qt's (media and launch keys), else their keysym's.
QString keyText(const QKeyEvent &event, int keyCode)
{
    const int qtKey = event.key();
    if (qtKey > 0x20 && qtKey < 0x01000000) {
        const char32_t character = char32_t(qtKey);
        const QString text = QString::fromUcs4(&character, 1);
        if (!text.isEmpty() && text.at(0).isPrint())
            return text.toUpper();
    }
    const QString typed = event.text();
    if (!typed.isEmpty() && typed.at(0).isPrint() && !typed.at(0).isSpace())
        return typed.toUpper();
    if (QString name = KeyCodes::keyNameForKeyCode(keyCode); !name.isEmpty())
        return name;
    if (QString name = QKeySequence(qtKey).toString(QKeySequence::NativeText); !name.isEmpty())
        return name;
    return KeyCodes::keysymNameForKeyCode(keyCode);
}

// The stored key code of the pressed physical key: the native scan code is the X key code on
// X11 and Wayland; without one (other platforms, synthesised events) the Qt key decides.
std::optional<int> keyCodeOf(const QKeyEvent &event)
{
    if (event.nativeScanCode() != 0) {
        if (auto keyCode = KeyCodes::keyCodeForXKeycode(event.nativeScanCode()))
            return keyCode;
    }
    return KeyCodes::keyCodeForQtKey(
        QKeyCombination(event.modifiers() & Qt::KeypadModifier, Qt::Key(event.key())).toCombined());
}

QColor orange()
{
    return QColor(255, 149, 0); // the system orange
}

QString rgba(const QColor &color, double opacity)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(QString::number(opacity, 'f', 2));
}

} // namespace

HotkeyRecorderView::HotkeyRecorderView(const QString &label, SettingsStore &store, const QString &keyCodeKey,
    const QString &modifiersKey, const QString &keyCharKey, std::function<void()> onChanged,
    IconMaker clearIcon, QWidget *parent)
    : QWidget(parent)
    , m_store(store)
    , m_shortcut { keyCodeKey, modifiersKey, keyCharKey, {} }
    , m_onChanged(std::move(onChanged))
    , m_clearIcon(std::move(clearIcon))
    , m_caption(new QLabel(label, this))
    , m_field(new QPushButton(this))
    , m_clearButton(new QToolButton(this))
{
    QFont captionFont = m_caption->font();
    captionFont.setPixelSize(13);
    m_caption->setFont(captionFont);
    // Where a language's caption and field do not both fit the row, the caption wraps: the
    // field, what the person clicks and reads, keeps its whole text.
    m_caption->setWordWrap(true);

    m_field->setFlat(true);
    m_field->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_field->setCursor(Qt::PointingHandCursor);
    m_field->setAccessibleName(label);
    m_field->setFocusPolicy(Qt::StrongFocus);
    connect(m_field, &QPushButton::clicked, this, &HotkeyRecorderView::toggle);

    m_clearButton->setAutoRaise(true);
    // Two recorders sit one above the other: each clear button says whose shortcut it clears.
    m_clearButton->setAccessibleName(tr("Clear the %1 shortcut").arg(label));
    m_clearButton->setToolTip(m_clearButton->accessibleName());
    m_clearButton->setCursor(Qt::PointingHandCursor);
    m_clearButton->setIconSize(QSize(14, 14));
    // Borderless, but reached by Tab it shows where the focus is, as every other control does.
    m_clearButton->setStyleSheet(QStringLiteral("QToolButton { border: 1px solid transparent; padding: 0; "
                                                "border-radius: 8px; } "
                                                "QToolButton:focus { border-color: palette(highlight); }"));
    connect(m_clearButton, &QToolButton::clicked, this, &HotkeyRecorderView::clear);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_caption, 0, Qt::AlignVCenter);
    row->addStretch(1);
    row->addWidget(m_field, 0, Qt::AlignVCenter);
    row->addWidget(m_clearButton, 0, Qt::AlignVCenter);

    updateField();
}

HotkeyRecorderView::~HotkeyRecorderView()
{
    if (m_isRecording)
        qApp->removeEventFilter(this);
}

void HotkeyRecorderView::setOnRecordingChanged(std::function<void(bool)> onRecordingChanged)
{
    m_onRecordingChanged = std::move(onRecordingChanged);
}

void HotkeyRecorderView::toggle()
{
    if (m_isRecording)
        stopRecording();
    else
        startRecording();
}

void HotkeyRecorderView::startRecording()
{
    m_isRecording = true;
    qApp->installEventFilter(this);
    updateField();
    if (m_onRecordingChanged)
        m_onRecordingChanged(true);
}

void HotkeyRecorderView::stopRecording()
{
    if (!m_isRecording)
        return;
    qApp->removeEventFilter(this);
    m_isRecording = false;
    updateField();
    if (m_onRecordingChanged)
        m_onRecordingChanged(false);
}

void HotkeyRecorderView::clear()
{
    m_shortcut.write(m_store, StoredShortcut {});
    updateField();
    if (m_onChanged)
        m_onChanged();
}

bool HotkeyRecorderView::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_isRecording)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        // Claim the key so no menu or window shortcut acts on it; the press then comes here.
        event->accept();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);

    const auto *press = static_cast<QKeyEvent *>(event);
    const std::optional<int> keyCode = keyCodeOf(*press);
    if (keyCode == KeyCodes::escapeKeyCode || press->key() == Qt::Key_Escape) {
        stopRecording();
        return true;
    }
    const qint64 modifiers = KeyCodes::storedModifiersForQt(press->modifiers());
    // Shift alone is not enough, plain keys never; modifier keys on their own are not keys.
    if (!(modifiers & (KeyCodes::controlFlag | KeyCodes::optionFlag | KeyCodes::commandFlag)) || !keyCode)
        return true;

    m_shortcut.write(m_store, { *keyCode, modifiers, keyText(*press, *keyCode) });
    stopRecording();
    if (m_onChanged)
        m_onChanged();
    return true;
}

void HotkeyRecorderView::hideEvent(QHideEvent *event)
{
    stopRecording();
    QWidget::hideEvent(event);
}

void HotkeyRecorderView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        updateField();
    QWidget::changeEvent(event);
}

void HotkeyRecorderView::updateField()
{
    const StoredShortcut stored = m_shortcut.read(m_store);
    const bool isSet = stored.keyCode >= 0;
    const QString display
        = isSet ? KeyCodes::shortcutDesktopText(stored.modifiers, stored.keyChar) : QString();

    const QPalette palette = this->palette();
    const QColor secondary = palette.color(QPalette::PlaceholderText);
    QFont font = this->font();
    QString text;
    QString style;
    const QString box
        = QStringLiteral("padding: 4px 10px; border-radius: 5px; min-width: 110px; text-align: left;");
    if (m_isRecording) {
        text = tr("Press shortcut…");
        style = QStringLiteral("QPushButton { %1 color: %2; background: %3; border: 1px solid %4; }")
                    .arg(box, orange().name(), rgba(orange(), 0.15), rgba(orange(), 0.4));
    } else if (!display.isEmpty()) {
        text = display;
        style = QStringLiteral("QPushButton { %1 color: %2; background: %3; border: none; }")
                    .arg(box, palette.color(QPalette::WindowText).name(), rgba(secondary, 0.1));
    } else {
        text = tr("None - click to set");
        style = QStringLiteral("QPushButton { %1 color: %2; background: %3; border: none; }")
                    .arg(box, secondary.name(), rgba(secondary, 0.1));
    }
    font.setPixelSize(12);
    font.setWeight(QFont::Medium);
    m_field->setFont(font);
    m_field->setText(text);
    // Named by its caption; a screen reader says the shortcut, or that it listens, after it.
    m_field->setAccessibleDescription(text);
    m_field->setStyleSheet(style);

    if (m_clearIcon)
        m_clearButton->setIcon(m_clearIcon(secondary));
    m_clearButton->setVisible(isSet);
}
