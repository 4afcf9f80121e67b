// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

// Draws the magnifier the user aims with: a round lens of frozen pixels magnified on a grid,
// the hotspot pixel outlined in the middle, and the colour's text on a pill beneath.
//
// Everything is drawn in device pixels, one image pixel per screen pixel, so that the grid and
// the outline stay crisp at any scale factor (logical drawing at 1.5 would smear them).
class SamplerLoupe {
public:
    // Lens diameter and text size in logical pixels, turned into device pixels for `scale`.
    explicit SamplerLoupe(double scale);

    // The device size of the whole loupe box for a text; an empty text draws no label.
    QSize boxSize(const QString &text) const;

    // The loupe for the hotspot `centre` (in `frozen`'s pixel coordinates) at `zoom` device
    // pixels per frozen pixel. Pixels beyond the frozen image show black.
    QImage render(const QImage &frozen, const QPoint &centre, int zoom, const QString &text) const;

    int lensDiameter() const { return m_diameter; }
    // The distance, in device pixels, between the hotspot and the loupe.
    int gap() const { return m_gap; }

private:
    double m_scale;
    int m_diameter;
    int m_gap;
    int m_labelSpacing;
    int m_labelPadding;
    QFont m_font;
};
