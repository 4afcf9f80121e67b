// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "screens/PaintedButton.h"
#include <functional>

// The popup's buttons: an optional symbol and an optional text in a row, either plain (text
// colour only, a faint highlight under the pointer) or on a filled rounded rectangle. The
// whole rectangle is the hit area, with a pointing-hand cursor.
class SymbolButton : public PaintedButton {
    Q_OBJECT
public:
    using ColorRole = std::function<QColor(const QPalette &)>;

    struct Style {
        QString symbol;
        int symbolSize = 12;
        QFont font;
        ColorRole foreground;
        ColorRole fill; // empty for a plain button
        qreal radius = 5;
        QMargins padding;
        int spacing = 4;
        bool centred = true;
    };

    SymbolButton(const QString &text, Style style, QWidget *parent = nullptr);

    QString symbol() const { return m_style.symbol; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Style m_style;
};
