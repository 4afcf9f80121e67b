// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// One line of text that ends in "…" when it does not fit; the whole text is the tooltip then.
// The colour is a function of the palette, so the label follows theme changes.
//
// Widths are measured with fractional metrics and rounded up: DejaVu and Noto glyphs have
// fractional advances, and a label sized to the rounded-down width would elide its own text.
class ElidedLabel : public QWidget {
    Q_OBJECT
public:
    using ColorRole = QColor (*)(const QPalette &);

    ElidedLabel(const QString &text, const QFont &font, ColorRole color, QWidget *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    void setAlignment(Qt::Alignment alignment);
    // Where the "…" goes when the text does not fit (the end by default). Code is elided in the
    // middle, so both its opening and its last argument stay readable.
    void setElideMode(Qt::TextElideMode mode);
    // Before eliding, try the font at smaller pixel sizes down to this one (0, the default:
    // never shrink). The label's font must be set in pixels.
    void setSmallestPixelSize(int pixelSize);
    // Wraps onto as many lines as the text needs instead of eliding (at word boundaries, or
    // anywhere in a word longer than the line).
    void setWrapping(bool wrapping);

    // The text as drawn at the current width: the whole text, or an elided one.
    QString shownText() const;
    // The font the text is drawn in at the current width.
    QFont shownFont() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return m_wrapping; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString m_text;
    ColorRole m_color;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
    int m_smallestPixelSize = 0;
    bool m_wrapping = false;
};
