#pragma once

#include <QWidget>

// One line of text that ends in "…" when it does not fit; the whole text is the tooltip then.
// The colour is a function of the palette, so the label follows theme changes.
class ElidedLabel : public QWidget {
    Q_OBJECT
public:
    using ColorRole = QColor (*)(const QPalette &);

    ElidedLabel(const QString &text, const QFont &font, ColorRole color, QWidget *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    void setAlignment(Qt::Alignment alignment);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString m_text;
    ColorRole m_color;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
};
