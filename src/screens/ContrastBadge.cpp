// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ContrastBadge.h"

#include "screens/CapsuleLabel.h"
#include "screens/ElidedLabel.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QLabel>

ContrastBadge::ContrastBadge(
    const QString &label, const QString &ratio, const QString &level, QWidget *parent)
    : QWidget(parent)
    , m_label(label)
    , m_ratio(ratio)
    , m_level(level)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);

    // The label and the ratio are what the line is for: the flexible space gives way, they never.
    auto *labelText = new ElidedLabel(label, Theme::font(13), &Theme::secondaryText, this);
    labelText->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(labelText, 0, Qt::AlignVCenter);
    row->addStretch(1);

    auto *ratioText = new ElidedLabel(ratio, Theme::monospacedFont(13), &Theme::text, this);
    ratioText->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(ratioText, 0, Qt::AlignVCenter);

    m_levelCapsule = new CapsuleLabel(
        level, Theme::font(10, QFont::DemiBold), &Theme::onAccent,
        [level](const QPalette &palette) { return Theme::levelColor(level, palette); }, QMargins(6, 2, 6, 2),
        this);
    row->addWidget(m_levelCapsule, 0, Qt::AlignVCenter);

    // "4.5:1" is read "4.5 to 1", as one says a ratio.
    QString spokenRatio = ratio;
    //: The colon of a contrast ratio read aloud: "4.5 to 1"; keep the spaces
    spokenRatio.replace(QLatin1Char(':'), tr(" to "));
    setAccessibleName(label + QStringLiteral(", ") + spokenRatio + QStringLiteral(", ") + level);
}

QColor ContrastBadge::levelColor() const
{
    return m_levelCapsule->fillColor();
}
