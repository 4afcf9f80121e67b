// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ColorDetailView.h"

#include "model/Contrast.h"
#include "screens/ColorSwatch.h"
#include "screens/ContrastBadge.h"
#include "screens/ContrastComparisonView.h"
#include "screens/Divider.h"
#include "screens/ElidedLabel.h"
#include "screens/FormatLine.h"
#include "screens/SymbolButton.h"
#include "screens/Theme.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace {

// Tall enough for the whole screen at the usual font sizes (a scroll bar would take width from
// the format values), short enough for a 768-pixel screen; larger fonts scroll.
constexpr int maximumContentHeight = 600;
constexpr int checkMarkMilliseconds = 150;
constexpr int resetMilliseconds = 200;

std::size_t indexOf(ColorFormat format)
{
    return std::size_t(format);
}

ContrastBadge *makeBadge(const QString &label, double ratio, QWidget *parent)
{
    return new ContrastBadge(label, contrastRatioText(ratio), contrastLevel(ratio), parent);
}

} // namespace

ColorDetailView::ColorDetailView(const PickedColor &color, const QList<PickedColor> &history,
    CopyCallback onCopy, std::function<void()> onBack, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
    , m_onCopy(std::move(onCopy))
    , m_onBack(std::move(onBack))
{
    m_scheduler = [this](int milliseconds, std::function<void()> job) {
        QTimer::singleShot(milliseconds, this, std::move(job));
    };

    auto *root = new QVBoxLayout(this);
    root->setContentsMargins(0, 0, 0, 0);
    root->setSpacing(0);

    // Top bar: back on the left, the name (when there is one) on the right.
    m_topBar = new QWidget(this);
    auto *bar = new QHBoxLayout(m_topBar);
    bar->setContentsMargins(12, 9, 16, 9);
    SymbolButton::Style backStyle;
    backStyle.symbol = QStringLiteral("chevron.left");
    backStyle.symbolSize = 11;
    backStyle.font = Theme::font(13);
    backStyle.foreground = &Theme::secondaryText;
    backStyle.padding = QMargins(4, 3, 6, 3);
    backStyle.spacing = 4;
    auto *back = new SymbolButton(tr("Back"), backStyle, this);
    back->setObjectName(QStringLiteral("backButton"));
    connect(back, &QAbstractButton::clicked, this, [this] {
        if (m_onBack)
            m_onBack();
    });
    bar->addWidget(back);
    if (!color.hasName())
        bar->addStretch(1);
    if (color.hasName()) {
        auto *name = new ElidedLabel(*color.name, Theme::font(14, QFont::Medium), &Theme::text, this);
        name->setObjectName(QStringLiteral("nameLabel"));
        name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        // A long name takes a second line rather than losing its end.
        name->setWrapping(true);
        bar->addWidget(name, 1);
    }
    root->addWidget(m_topBar);
    root->addWidget(new Divider(this));

    auto *content = new QWidget;
    auto *stack = new QVBoxLayout(content);
    stack->setContentsMargins(16, 16, 16, 16);
    stack->setSpacing(16);

    stack->addWidget(new ColorSwatch(color.red, color.green, color.blue, 80, content), 0, Qt::AlignHCenter);

    // The nine formats in their declared order, on one rounded panel.
    auto *panel = new QWidget(content);
    panel->setObjectName(QStringLiteral("formatList"));
    panel->setAttribute(Qt::WA_StyledBackground);
    const QColor panelFill = Theme::withAlpha(Theme::controlBackground(palette()), 0.5);
    const QColor panelEdge = Theme::withAlpha(Theme::text(palette()), 0.06);
    panel->setStyleSheet(
        QStringLiteral("#formatList { background: %1; border: 1px solid %2; border-radius: 8px; }")
            .arg(panelFill.name(QColor::HexArgb), panelEdge.name(QColor::HexArgb)));
    auto *lines = new QVBoxLayout(panel);
    lines->setContentsMargins(1, 1, 1, 1);
    lines->setSpacing(1);
    for (const ColorFormat format : allColorFormats) {
        auto *line = new FormatLine(format, color.formatted(format), panel);
        connect(line, &QAbstractButton::clicked, this, [this, format] { copy(format); });
        line->installEventFilter(this);
        m_lines[indexOf(format)] = line;
        lines->addWidget(line);
    }
    stack->addWidget(panel);

    auto *contrast = new QVBoxLayout;
    contrast->setContentsMargins(8, 0, 8, 0);
    contrast->setSpacing(8);
    auto *heading = new ElidedLabel(
        tr("Contrast Ratios"), Theme::font(11, QFont::DemiBold), &Theme::secondaryText, content);
    heading->setObjectName(QStringLiteral("sectionHeading"));
    contrast->addWidget(heading);
    const double luminance = relativeLuminance(color.red, color.green, color.blue);
    m_whiteBadge = makeBadge(tr("vs White"), contrastRatio(luminance, whiteLuminance), content);
    m_blackBadge = makeBadge(tr("vs Black"), contrastRatio(luminance, blackLuminance), content);
    contrast->addWidget(m_whiteBadge);
    contrast->addWidget(m_blackBadge);
    stack->addLayout(contrast);
    m_comparison = new ContrastComparisonView(color, history, content);
    stack->addWidget(m_comparison);
    for (QWidget *control : { static_cast<QWidget *>(m_comparison->otherMenu()),
             static_cast<QWidget *>(m_comparison->swapButton()) })
        if (control)
            control->installEventFilter(this);

    m_scroll = new QScrollArea(this);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus); // Tab goes from line to line, never to the frame
    m_scroll->setWidgetResizable(true);
    m_scroll->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    m_scroll->setWidget(content);
    setHeightLimit(QWIDGETSIZE_MAX);
    root->addWidget(m_scroll);

    // A click on the empty screen keeps Escape working; Tab passes the screen itself by.
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Color details"));
}

void ColorDetailView::setHeightLimit(int heightLimit)
{
    const int bar
        = m_topBar->hasHeightForWidth() ? m_topBar->heightForWidth(width()) : m_topBar->sizeHint().height();
    const int room = heightLimit - bar - 1; // the divider under the bar
    m_scroll->setFixedHeight(
        std::min({ m_scroll->widget()->sizeHint().height(), maximumContentHeight, qMax(room, 120) }));
}

FormatLine *ColorDetailView::line(ColorFormat format) const
{
    return m_lines[indexOf(format)];
}

void ColorDetailView::copy(ColorFormat format)
{
    if (m_onCopy)
        m_onCopy(m_color, format);
    setCopiedFormat(format, checkMarkMilliseconds, QEasingCurve::OutCubic);
    // Each copy schedules its own reset; it clears only its own mark, so a newer copy of
    // another format keeps its check mark for its full time.
    m_scheduler(copiedMarkMilliseconds, [this, format] {
        if (m_copiedFormat == format)
            setCopiedFormat(std::nullopt, resetMilliseconds, QEasingCurve::InOutCubic);
    });
}

void ColorDetailView::setCopiedFormat(
    std::optional<ColorFormat> format, int milliseconds, QEasingCurve::Type easing)
{
    m_copiedFormat = format;
    for (FormatLine *line : m_lines)
        line->setCopied(format == line->format(), milliseconds, easing);
}

void ColorDetailView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_onBack) {
        m_onBack();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool ColorDetailView::eventFilter(QObject *watched, QEvent *event)
{
    // Reaching the comparison from the keyboard brings its results into view with it, not only
    // the control that has the focus.
    if (event->type() == QEvent::FocusIn && watched->parent() == m_comparison)
        m_scroll->ensureWidgetVisible(m_comparison, 0, 16);
    // Up and Down walk the format lines.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            const auto it = std::find(m_lines.begin(), m_lines.end(), watched);
            if (it != m_lines.end()) {
                const auto index = std::distance(m_lines.begin(), it) + (key == Qt::Key_Down ? 1 : -1);
                if (index >= 0 && index < std::ssize(m_lines))
                    m_lines[std::size_t(index)]->setFocus(Qt::TabFocusReason);
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}
