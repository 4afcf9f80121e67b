// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/CopyConfirmation.h"
#include "history/WindowRoles.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>

class QWidget;

// The copy confirmation: a small dark capsule with one line of white text ("Copied #FF6B36")
// floating 100 px above the middle of the screen under the pointer. It fades in over 0.2 s,
// starts fading out 1.5 s after it appeared and is gone 0.3 s later. It takes no input and
// never takes focus from the application the user works in. A new message replaces the
// capsule on screen at once, without a fade. Main thread only; a fresh window per message.
//
// Where the windowing system places windows and gives focus itself (Wayland), the capsule is
// shown as an overlay the desktop never focuses (WindowRoles); where the desktop has no
// overlays, no capsule shows at all, since an ordinary window would take the keyboard and a
// paste right after the copy would go to Vantle. Where no window can be shown at all, nothing
// happens.
class CopyHud : public QObject, public CopyConfirmation {
    Q_OBJECT
public:
    // `showsTranslucentWindows` answers, at each message, whether the desktop composites:
    // without that, the capsule's window is cut to its shape instead. `placesWindowsAsAsked`:
    // whether the windowing system puts an unparented window exactly where asked (X11).
    // `roles`: how the desktop is told that the capsule is an overlay, where it must be
    // (Wayland); null where windows need no telling.
    CopyHud(std::function<bool()> showsTranslucentWindows, bool placesWindowsAsAsked,
        WindowRoles *roles = nullptr, QObject *parent = nullptr);
    ~CopyHud() override;

    void showHUD(const QString &message) override;

    // The capsule window on screen (also while fading out), or null.
    QWidget *currentWindow() const;

    // The capsule's size and place for `message` on a screen whose usable area is `available`
    // (without panels and docks), in the screen's logical pixels.
    static QSize capsuleSize(const QString &message);
    static QPoint capsulePosition(const QRect &available, const QSize &size);

private:
    void dismiss();

    bool m_placesWindowsAsAsked;
    WindowRoles *m_roles;

    std::function<bool()> m_showsTranslucentWindows;
    QPointer<QWidget> m_current;
    // Runs only while a capsule is on screen: nothing ticks while the program sits idle.
    QTimer m_dismissal;
};
