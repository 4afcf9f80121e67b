// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

// One tab of the settings window's tab bar: a symbol over a short label on a rounded plate that
// is filled with the accent colour while the tab is selected (checked).
class SettingsTabButton : public QAbstractButton {
    Q_OBJECT
public:
    SettingsTabButton(const QString &label, const QString &symbol, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QString m_symbol;
};
