#pragma once

#include "model/ColorFormat.h"

#include "screens/PaintedButton.h"
#include <QEasingCurve>
#include <QPointer>

class QVariantAnimation;

// One line of the detail screen's format list: the format's label in a 100-pixel column, the
// colour's text in that format, and a copy mark that turns into a green check mark after a
// copy. The whole line is one button; clicking it is the copy.
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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ColorFormat m_format;
    QString m_value;
    bool m_isCopied = false;
    qreal m_markProgress = 0; // 0: copy mark, 1: check mark
    QPointer<QVariantAnimation> m_animation;
};
