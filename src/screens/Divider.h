// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// A one-pixel horizontal rule in a faint shade of the text colour.
class Divider : public QWidget {
    Q_OBJECT
public:
    explicit Divider(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
