// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

// A short text on a filled capsule: the popup's colour count and the contrast levels.
class CapsuleLabel : public QWidget {
    Q_OBJECT
public:
    using ColorRole = std::function<QColor(const QPalette &)>;

    CapsuleLabel(const QString &text, const QFont &font, ColorRole textColor, ColorRole fillColor,
        QMargins padding, QWidget *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QColor fillColor() const { return m_fill(palette()); }
    QColor textColor() const { return m_textColor(palette()); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    ColorRole m_textColor;
    ColorRole m_fill;
    QMargins m_padding;
};
