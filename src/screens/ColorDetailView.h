// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/PickedColor.h"

#include <QEasingCurve>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>

class ContrastBadge;
class ContrastComparisonView;
class FormatLine;
class QScrollArea;

// The popup's second screen: one colour large, its text in all nine formats (a click on a line
// copies it), its contrast against white and black, and its contrast with another colour of the
// history as text and background. It shows the colour as it was handed
// over and changes nothing itself: copies go through `onCopy`. Escape or "Back" calls `onBack`.
class ColorDetailView : public QWidget {
    Q_OBJECT
public:
    using CopyCallback = std::function<void(const PickedColor &, ColorFormat)>;
    // Runs `job` once, `milliseconds` from now, on the main thread; the job must not outlive
    // the view (the default one is bound to the view's lifetime).
    using Scheduler = std::function<void(int milliseconds, std::function<void()> job)>;

    // How long a copied line keeps its check mark.
    static constexpr int copiedMarkMilliseconds = 1500;

    // `history`: every colour, newest first, for the comparison.
    ColorDetailView(const PickedColor &color, const QList<PickedColor> &history, CopyCallback onCopy,
        std::function<void()> onBack, QWidget *parent = nullptr);

    const PickedColor &color() const { return m_color; }
    std::optional<ColorFormat> copiedFormat() const { return m_copiedFormat; }
    FormatLine *line(ColorFormat format) const;
    ContrastBadge *whiteBadge() const { return m_whiteBadge; }
    ContrastBadge *blackBadge() const { return m_blackBadge; }
    ContrastComparisonView *comparison() const { return m_comparison; }

    void setScheduler(Scheduler scheduler) { m_scheduler = std::move(scheduler); }
    // The tallest the screen may be; its content scrolls within it.
    void setHeightLimit(int heightLimit);

    // Copies one format as a click on its line does.
    void copy(ColorFormat format);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setCopiedFormat(std::optional<ColorFormat> format, int milliseconds, QEasingCurve::Type easing);

    PickedColor m_color;
    CopyCallback m_onCopy;
    std::function<void()> m_onBack;
    std::optional<ColorFormat> m_copiedFormat;
    Scheduler m_scheduler;
    std::array<FormatLine *, allColorFormats.size()> m_lines {};
    ContrastBadge *m_whiteBadge = nullptr;
    ContrastBadge *m_blackBadge = nullptr;
    ContrastComparisonView *m_comparison = nullptr;
    QWidget *m_topBar = nullptr;
    QScrollArea *m_scroll = nullptr;
};
