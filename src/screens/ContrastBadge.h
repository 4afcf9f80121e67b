// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class CapsuleLabel;
class ElidedLabel;
class QLabel;

// One contrast line of the detail screen: what the colour is compared with, the ratio text and
// the level on a capsule (green for AAA and AA, orange for AA Large, red for a fail). The
// texts come prepared from the detail screen.
class ContrastBadge : public QWidget {
    Q_OBJECT
public:
    ContrastBadge(
        const QString &label, const QString &ratio, const QString &level, QWidget *parent = nullptr);

    QString label() const { return m_label; }
    QString ratio() const { return m_ratio; }
    QString level() const { return m_level; }
    QColor levelColor() const;

private:
    QString m_label;
    QString m_ratio;
    QString m_level;
    CapsuleLabel *m_levelCapsule;
};
