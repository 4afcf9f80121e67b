// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ContrastComparisonView.h"

#include "model/ColorFormat.h"
#include "model/Contrast.h"
#include "model/NumberText.h"
#include "screens/CapsuleLabel.h"
#include "screens/ColorSwatch.h"
#include "screens/ElidedLabel.h"
#include "screens/SymbolButton.h"
#include "screens/Theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int swatchIconSize = 16;

QColor screenColor(const OpaqueColor &c)
{
    return QColor::fromRgbF(
        float(qBound(0.0, c.red, 1.0)), float(qBound(0.0, c.green, 1.0)), float(qBound(0.0, c.blue, 1.0)));
}

QString nameOf(const PickedColor &color)
{
    return color.hasName() ? *color.name : hexText(color.red, color.green, color.blue);
}

QIcon swatchIcon(const PickedColor &color, const QPalette &palette, qreal pixelRatio)
{
    QPixmap pixmap(QSize(swatchIconSize, swatchIconSize) * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    ColorSwatch::paintSwatch(painter, QRectF(0, 0, swatchIconSize, swatchIconSize),
        screenColor({ color.red, color.green, color.blue }), palette);
    return QIcon(pixmap);
}

// The text colour as a sample word on the background colour, on a rounded panel outlined so
// that a background like the popup's own stays visible.
class ContrastPreview : public QWidget {
public:
    ContrastPreview(const QString &sample, QWidget *parent)
        : QWidget(parent)
        , m_sample(sample)
    {
        setObjectName(QStringLiteral("contrastPreview"));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    void setColors(const QColor &text, const QColor &background)
    {
        m_text = text;
        m_background = background;
        update();
    }
    QSize sizeHint() const override { return { 160, QFontMetrics(sampleFont()).height() + 24 }; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(QPen(Theme::withAlpha(Theme::text(palette()), 0.15), 1));
        painter.setBrush(m_background);
        painter.drawRoundedRect(box, 8, 8);
        painter.setPen(m_text);
        painter.setFont(sampleFont());
        painter.drawText(box.adjusted(12, 0, -12, 0), Qt::AlignCenter,
            QFontMetrics(sampleFont()).elidedText(m_sample, Qt::ElideRight, width() - 24));
    }

private:
    static QFont sampleFont() { return Theme::font(20, QFont::Medium); }
    QString m_sample;
    QColor m_text;
    QColor m_background;
};

} // namespace

ContrastComparisonView::ContrastComparisonView(
    const PickedColor &shown, const QList<PickedColor> &history, QWidget *parent)
    : QWidget(parent)
    , m_shown(shown)
{
    auto *stack = new QVBoxLayout(this);
    stack->setContentsMargins(8, 0, 8, 0);
    stack->setSpacing(8);
    auto *heading = new ElidedLabel(
        tr("Text and Background"), Theme::font(11, QFont::DemiBold), &Theme::secondaryText, this);
    heading->setObjectName(QStringLiteral("sectionHeading"));
    stack->addWidget(heading);

    for (const bool pinned : { true, false })
        for (const PickedColor &color : history)
            if (color.isPinned == pinned && color.id != shown.id)
                m_others.append(color);
    const std::optional<PickedColor> first = defaultOther(shown, history);
    if (!first) {
        auto *hint = new ElidedLabel(tr("Pick another color to see how the two read as text and background."),
            Theme::font(12), &Theme::secondaryText, this);
        hint->setWrapping(true);
        stack->addWidget(hint);
        return;
    }

    // The menu takes the width; the swap button keeps its own.
    auto *choice = new QHBoxLayout;
    choice->setSpacing(8);
    m_menu = new QComboBox(this);
    m_menu->setObjectName(QStringLiteral("otherColorMenu"));
    // A screen reader names a combo box by its value; what the menu is for is its description.
    m_menu->setAccessibleDescription(tr("Compared color"));
    m_menu->setIconSize(QSize(swatchIconSize, swatchIconSize));
    m_menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_menu->setMinimumContentsLength(6);
    m_menu->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (qsizetype i = 0; i < m_others.size(); ++i) {
        const PickedColor &color = m_others[i];
        if (i > 0 && !color.isPinned && m_others[i - 1].isPinned)
            m_menu->insertSeparator(m_menu->count());
        m_menu->addItem(swatchIcon(color, palette(), devicePixelRatioF()), nameOf(color), int(i));
        if (color.id == first->id)
            m_menu->setCurrentIndex(m_menu->count() - 1);
    }
    choice->addWidget(m_menu, 1);
    SymbolButton::Style swapStyle;
    swapStyle.font = Theme::font(13);
    swapStyle.foreground = &Theme::text;
    swapStyle.fill = [](const QPalette &p) { return Theme::withAlpha(Theme::controlBackground(p), 0.9); };
    swapStyle.padding = QMargins(10, 4, 10, 4);
    auto *swap = new SymbolButton(tr("Swap"), swapStyle, this);
    swap->setObjectName(QStringLiteral("swapButton"));
    swap->setFocusPolicy(Qt::StrongFocus);
    swap->setAccessibleName(tr("Swap text and background"));
    m_swap = swap;
    choice->addWidget(swap, 0, Qt::AlignVCenter);
    stack->addLayout(choice);

    m_roles = new ElidedLabel(QString(), Theme::font(12), &Theme::secondaryText, this);
    m_roles->setWrapping(true);
    stack->addWidget(m_roles);
    m_preview = new ContrastPreview(tr("Sample text"), this);
    stack->addWidget(m_preview);

    m_ratio = new ElidedLabel(QString(), Theme::monospacedFont(22, QFont::Medium), &Theme::text, this);
    m_ratio->setObjectName(QStringLiteral("comparisonRatio"));
    stack->addWidget(m_ratio);
    m_gradeNames = { tr("Normal text"), tr("Large text"), tr("Non-text") };
    for (std::size_t i = 0; i < m_grades.size(); ++i)
        m_rows[i] = addResultRow(m_gradeNames[i], &m_grades[i]);
    m_rows[3] = addResultRow(tr("APCA"), nullptr);
    for (QWidget *row : m_rows)
        stack->addWidget(row);

    connect(m_menu, &QComboBox::currentIndexChanged, this, [this] { measure(); });
    connect(swap, &QAbstractButton::clicked, this, [this] {
        m_isShownText = !m_isShownText;
        measure();
    });
    measure();
}

QWidget *ContrastComparisonView::addResultRow(const QString &label, CapsuleLabel **capsule)
{
    auto *row = new QWidget(this);
    row->setObjectName(QStringLiteral("contrastResult"));
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    column->addLayout(line);
    // The name and the result are what the line is for: the flexible space gives way, they never.
    auto *name = new ElidedLabel(label, Theme::font(13), &Theme::secondaryText, row);
    name->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    line->addWidget(name, 0, Qt::AlignVCenter);
    line->addStretch(1);
    if (capsule) {
        const std::size_t index = std::size_t(capsule - m_grades.data());
        *capsule = new CapsuleLabel(
            QString(), Theme::font(10, QFont::DemiBold), &Theme::onAccent,
            [this, index](const QPalette &palette) {
                return m_grades[index]->text() == QLatin1String("Fail") ? Theme::red(palette)
                                                                        : Theme::green(palette);
            },
            QMargins(6, 2, 6, 2), row);
        line->addWidget(*capsule, 0, Qt::AlignVCenter);
        return row;
    }
    // APCA: the Lc beside its name, what it is enough for below, wrapping with a large font.
    m_lc = new ElidedLabel(QString(), Theme::monospacedFont(13), &Theme::text, row);
    m_lc->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    line->addWidget(m_lc, 0, Qt::AlignVCenter);
    m_reading = new ElidedLabel(QString(), Theme::font(12), &Theme::secondaryText, row);
    m_reading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_reading->setWrapping(true);
    column->addWidget(m_reading);
    return row;
}

std::optional<PickedColor> ContrastComparisonView::defaultOther(
    const PickedColor &shown, const QList<PickedColor> &history)
{
    std::optional<PickedColor> before, newest;
    for (const PickedColor &color : history) {
        if (color.id == shown.id)
            continue;
        if (color.timestamp <= shown.timestamp && (!before || color.timestamp > before->timestamp))
            before = color;
        if (!newest || color.timestamp > newest->timestamp)
            newest = color;
    }
    return before ? before : newest;
}

void ContrastComparisonView::measure()
{
    const PickedColor &other = m_others[qsizetype(m_menu->currentData().toInt())];
    const PickedColor &text = m_isShownText ? m_shown : other;
    const PickedColor &background = m_isShownText ? other : m_shown;
    m_pair = measureContrast(
        text.red, text.green, text.blue, text.alpha, { background.red, background.green, background.blue });

    const QString textName = nameOf(text), backgroundName = nameOf(background);
    m_roles->setText(colorSentence(tr("%1 as text on %2"), { textName, backgroundName }));
    static_cast<ContrastPreview *>(m_preview)->setColors(
        screenColor(m_pair.foreground), screenColor(m_pair.background));
    m_preview->setAccessibleName(tr("Preview: %1 text on %2").arg(textName, backgroundName));
    m_swap->setAccessibleDescription(tr("Now %1 is the text").arg(textName));

    const QString ratio = contrastRatioText(m_pair.ratio);
    // "4.5:1" is read "4.5 to 1", as one says a ratio.
    //: A contrast ratio read aloud: "4.5 to 1"; keep the spaces
    const QString spokenRatio = NumberText::fixed(m_pair.ratio, 1) + tr(" to 1");
    m_ratio->setText(ratio);
    m_ratio->setAccessibleName(tr("Contrast ratio %1").arg(spokenRatio));
    const QString grades[] = { gradeText(m_pair.normalText()), gradeText(m_pair.largeText()),
        nonTextGradeText(m_pair.nonTextPasses()) };
    for (std::size_t i = 0; i < m_grades.size(); ++i) {
        m_grades[i]->setText(grades[i]);
        m_rows[i]->setAccessibleName(tr("%1: %2, %3").arg(m_gradeNames[i], grades[i], spokenRatio));
    }
    const QString lc = NumberText::fixed(m_pair.apcaLc, 1);
    const QString reading = apcaUseLabel(apcaUse(m_pair.apcaLc));
    m_lc->setText(tr("Lc %1").arg(lc));
    m_reading->setText(reading);
    m_rows[3]->setAccessibleName(tr("APCA: Lc %1, %2").arg(lc, reading));
}

QStringList ContrastComparisonView::spokenResults() const
{
    QStringList spoken;
    if (m_ratio)
        spoken << m_ratio->accessibleName();
    for (const QWidget *row : m_rows)
        if (row)
            spoken << row->accessibleName();
    return spoken;
}
