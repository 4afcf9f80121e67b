// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The small widgets the settings window's pages share: labels in the window's tones, links,
// dividers and scrolling pages.
#include "screens/Theme.h"

#include <QDesktopServices>
#include <QFrame>
#include <QLabel>
#include <QPalette>
#include <QScrollArea>
#include <QUrl>

namespace SettingsWidgets {

inline QLabel *textLabel(const QString &text, int pixelSize, bool bold = false, QWidget *parent = nullptr)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::withPixelSize(label->font(), pixelSize, bold));
    return label;
}

// Secondary text and dividers are tinted from the window's text colour; the tone is kept as a
// property so a switch between light and dark tints them again (SettingsView::changeEvent).
const char toneProperty[] = "vantleTone";

inline void applyTone(QWidget *widget, const QPalette &window)
{
    const QString tone = widget->property(toneProperty).toString();
    if (tone.isEmpty())
        return;
    QColor color = window.color(QPalette::WindowText);
    color.setAlphaF(tone == QLatin1String("divider") ? 0.15 : Theme::secondaryText(window).alphaF());
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, color);
    widget->setPalette(palette);
}

template<typename Widget> inline Widget *secondary(Widget *widget)
{
    widget->setProperty(toneProperty, QStringLiteral("secondary"));
    applyTone(widget, widget->palette());
    return widget;
}

inline QLabel *secondaryLabel(const QString &text, int pixelSize, QWidget *parent = nullptr)
{
    return secondary(textLabel(text, pixelSize, false, parent));
}

// A link in the accent colour that opens `url` with the desktop's handler (browser, mail).
inline QLabel *linkLabel(const QString &text, const QUrl &url, int pixelSize, QWidget *parent = nullptr)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::RichText);
    label->setText(QStringLiteral("<a href=\"%1\" style=\"color:%2; text-decoration:none;\">%3</a>")
                       .arg(url.toString(QUrl::FullyEncoded).toHtmlEscaped(),
                           Theme::accent(label->palette()).name(), text.toHtmlEscaped()));
    label->setFont(Theme::withPixelSize(label->font(), pixelSize));
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setCursor(Qt::PointingHandCursor);
    label->setToolTip(url.toString());
    QObject::connect(label, &QLabel::linkActivated, label, [url] { QDesktopServices::openUrl(url); });
    return label;
}

inline QFrame *divider(int width = -1)
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setProperty(toneProperty, QStringLiteral("divider"));
    applyTone(line, line->palette());
    if (width > 0)
        line->setFixedWidth(width);
    return line;
}

inline QScrollArea *scrolling(QWidget *content)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    // Tab goes from the tabs straight to the page's first control; the area follows the focus.
    area->setFocusPolicy(Qt::NoFocus);
    // The page shows the window's background, not the scroll area's base colour.
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return area;
}

} // namespace SettingsWidgets
