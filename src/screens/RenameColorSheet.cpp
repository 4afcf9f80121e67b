#include "screens/RenameColorSheet.h"

#include "screens/ColorSwatch.h"
#include "screens/ElidedLabel.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RenameColorSheet::RenameColorSheet(const PickedColor &color, std::function<void(const QString &)> onRename,
                                   QWidget *parent)
    : QDialog(parent)
    , m_onRename(std::move(onRename))
{
    setWindowTitle(tr("Rename Color"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);

    auto *stack = new QVBoxLayout(this);
    stack->setContentsMargins(24, 24, 24, 24);
    stack->setSpacing(16);
    stack->setSizeConstraint(QLayout::SetFixedSize);

    auto *title = new QLabel(tr("Rename Color"), this);
    title->setFont(Theme::font(14, QFont::DemiBold));
    title->setAlignment(Qt::AlignCenter);
    stack->addWidget(title, 0, Qt::AlignHCenter);

    auto *colorRow = new QHBoxLayout;
    colorRow->setSpacing(8);
    colorRow->addWidget(new ColorSwatch(color.red, color.green, color.blue, 24, this));
    // Always the upper-case hex, whatever format the list shows.
    auto *hex = new ElidedLabel(color.formatted(ColorFormat::hex), Theme::monospacedFont(13), &Theme::secondaryText,
                                this);
    hex->setObjectName(QStringLiteral("hexLabel"));
    colorRow->addWidget(hex);
    stack->addLayout(colorRow);
    stack->setAlignment(colorRow, Qt::AlignHCenter);

    m_field = new QLineEdit(color.name.value_or(QString()), this);
    m_field->setPlaceholderText(tr("Color name (optional)"));
    m_field->setFixedWidth(240);
    m_field->setFont(Theme::font(13));
    stack->addWidget(m_field, 0, Qt::AlignHCenter);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setAutoDefault(false);
    m_save = new QPushButton(tr("Save"), this);
    m_save->setDefault(true);
    m_save->setAutoDefault(true);
    // The prominent button: filled with the theme's accent.
    QPalette prominent = m_save->palette();
    prominent.setColor(QPalette::Button, prominent.color(QPalette::Highlight));
    prominent.setColor(QPalette::ButtonText, prominent.color(QPalette::HighlightedText));
    m_save->setPalette(prominent);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_save);
    stack->addLayout(buttons);
    stack->setAlignment(buttons, Qt::AlignHCenter);

    // Escape rejects, as in every dialog; Return presses the default button, Save.
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_save, &QPushButton::clicked, this, [this] {
        const QString text = m_field->text();
        const auto onRename = m_onRename;
        accept();
        if (onRename)
            onRename(text);
    });
    m_field->setFocus();
}
