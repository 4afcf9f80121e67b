// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include "screens/PaintedButton.h"
#include <QEasingCurve>
#include <QPointer>

class ElidedLabel;
class QVariantAnimation;

// One line of the detail screen's format list: the format's label over the colour's text in
// that format, and a copy mark that turns into a green check mark after a copy. The whole line
// is one button; clicking it is the copy.
//
// The text has the line's whole width under its label: beside a label column, a 320-pixel
// popup leaves too little room for "rgba(255, 255, 255, 1.0)" in DejaVu Sans Mono. A code
// initialiser longer than the line is elided in the middle; the tooltip and the copy carry
// the whole text.
class FormatLine : public PaintedButton {
    Q_OBJECT
public:
    FormatLine(ColorFormat format, const QString &value, QWidget *parent = nullptr);

    ColorFormat format() const { return m_format; }
    QString value() const { return m_value; }
    bool isCopied() const { return m_isCopied; }
    // "checkmark" while the line shows the copy confirmation, else "doc.on.doc".
    QString markSymbol() const;

    // Switches the mark, fading between the two symbols over `milliseconds` (0: at once).
    void setCopied(bool copied, int milliseconds, QEasingCurve::Type easing);

    // The text as drawn at the line's width.
    QString shownValue() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ColorFormat m_format;
    QString m_value;
    ElidedLabel *m_valueLabel;
    bool m_isCopied = false;
    qreal m_markProgress = 0; // 0: copy mark, 1: check mark
    QPointer<QVariantAnimation> m_animation;
};
