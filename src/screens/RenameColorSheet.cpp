// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/RenameColorSheet.h"

#include "screens/ColorSwatch.h"
#include "screens/ElidedLabel.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RenameColorSheet::RenameColorSheet(
    const PickedColor &color, std::function<void(const QString &)> onRename, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
    , m_onRename(std::move(onRename))
{
    setAccessibleName(tr("Rename Color"));

    auto *stack = new QVBoxLayout(this);
    stack->setContentsMargins(24, 24, 24, 24);
    stack->setSpacing(16);

    auto *title = new QLabel(tr("Rename Color"), this);
    title->setFont(Theme::font(14, QFont::DemiBold));
    title->setAlignment(Qt::AlignCenter);
    stack->addWidget(title, 0, Qt::AlignHCenter);

    auto *colorRow = new QHBoxLayout;
    colorRow->setSpacing(8);
    colorRow->addWidget(new ColorSwatch(color.red, color.green, color.blue, 24, this));
    // Always the upper-case hex, whatever format the list shows.
    auto *hex = new ElidedLabel(
        color.formatted(ColorFormat::hex), Theme::monospacedFont(13), &Theme::secondaryText, this);
    hex->setObjectName(QStringLiteral("hexLabel"));
    colorRow->addWidget(hex);
    stack->addLayout(colorRow);
    stack->setAlignment(colorRow, Qt::AlignHCenter);

    m_field = new QLineEdit(color.name.value_or(QString()), this);
    m_field->setPlaceholderText(tr("Color name (optional)"));
    m_field->setAccessibleName(tr("Color name"));
    m_field->setFixedWidth(240);
    m_field->setFont(Theme::font(13));
    stack->addWidget(m_field, 0, Qt::AlignHCenter);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setAutoDefault(false);
    m_save = new QPushButton(tr("Save"), this);
    m_save->setDefault(true);
    // The prominent button: filled with the theme's accent.
    QPalette prominent = m_save->palette();
    prominent.setColor(QPalette::Button, prominent.color(QPalette::Highlight));
    prominent.setColor(QPalette::ButtonText, prominent.color(QPalette::HighlightedText));
    m_save->setPalette(prominent);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_save);
    stack->addLayout(buttons);
    stack->setAlignment(buttons, Qt::AlignHCenter);

    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_closedByKeyboard = !m_cancel->underMouse();
        Q_EMIT finished();
    });
    connect(m_save, &QPushButton::clicked, this, [this] {
        m_closedByKeyboard = !m_save->underMouse();
        save();
    });
    connect(m_field, &QLineEdit::returnPressed, this, [this] {
        m_closedByKeyboard = true;
        save();
    });
    setFocusProxy(m_field);
}

void RenameColorSheet::save()
{
    const QString text = m_field->text();
    // The rename rebuilds the list behind the sheet; the host takes the sheet away after.
    if (m_onRename)
        m_onRename(text);
    Q_EMIT finished();
}

void RenameColorSheet::keyPressEvent(QKeyEvent *event)
{
    // Escape cancels the sheet only: the popup around it stays open.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        m_closedByKeyboard = true;
        Q_EMIT finished();
        return;
    }
    QWidget::keyPressEvent(event);
}
