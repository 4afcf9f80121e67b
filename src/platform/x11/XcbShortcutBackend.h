// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <QAbstractNativeEventFilter>
#include <QList>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

struct _XCBKeySymbols;

// Global shortcuts on an X11 desktop: passive key grabs on the root window.
//
// - Each shortcut is grabbed for every key code its keysym sits on (the key itself when the
//   keymap gives its keysym to none), and for every combination
//   of Caps Lock, Num Lock and Scroll Lock, so it fires whatever lock is on. Which modifier
//   bits Num Lock, Scroll Lock, Alt and Super use is read from the server's modifier mapping.
// - A keyboard mapping change (another layout, xmodmap) grabs everything again.
// - A combination another client already holds is refused by the server with BadAccess; the
//   error is taken here (checked requests) so it is neither logged nor reported.
// - Presses arrive through Qt's native event filter on the main thread, on the root or on one
//   of our own windows that holds the keyboard (the popup, the loupe). Auto-repeat is
//   recognised (a press of the held key without a release, or a release and a press with the
//   same time stamp) so one press fires once. The release of a shortcut's key often goes to
//   the window that grabbed the keyboard in answer to the press, or to another program once
//   that grab is over; XInput 2 raw events report it wherever it went.
class XcbShortcutBackend final : public GlobalShortcutBackend, public QAbstractNativeEventFilter {
    Q_OBJECT
public:
    // A backend on Qt's own X connection, or none when the application is not on X11.
    static std::unique_ptr<XcbShortcutBackend> create(QObject *parent = nullptr);

    XcbShortcutBackend(xcb_connection_t *connection, xcb_window_t root, QObject *parent = nullptr);
    ~XcbShortcutBackend() override;

    void registerShortcut(const GlobalShortcut &shortcut) override;
    void unregisterShortcut(int id) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    // The X key codes a shortcut on the stored `keyCode` grabs with the current keymap.
    QList<xcb_keycode_t> keycodesForKey(qint64 keyCode) const;

private:
    struct Registration {
        int id;
        qint64 keyCode; // stored
        qint64 modifiers; // stored flags
        QList<xcb_keycode_t> keycodes;
    };
    struct Grab {
        xcb_keycode_t keycode;
        quint16 modifiers; // without lock bits
        bool operator==(const Grab &) const = default;
    };

    void readKeyboardMapping();
    QList<quint16> lockCombinations() const;
    quint16 relevantModifiers() const;
    QList<Grab> wantedGrabs() const;
    void syncGrabs();
    void releaseAllGrabs();
    void collectGrabAnswers();
    void scheduleMappingRefresh();
    void refreshMapping();
    bool handleKey(const xcb_key_press_event_t *event, bool isPress);
    void watchRelease(bool isOn);
    void noteRelease(xcb_keycode_t keycode, xcb_timestamp_t time);

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    _XCBKeySymbols *m_symbols = nullptr;
    quint8 m_xkbFirstEvent = 0;
    quint8 m_xinputOpcode = 0;
    bool m_isWatchingRelease = false;
    quint16 m_altMask = XCB_MOD_MASK_1;
    quint16 m_superMask = XCB_MOD_MASK_4;
    quint16 m_numLockMask = 0;
    quint16 m_scrollLockMask = 0;
    std::vector<Registration> m_registrations; // in registration order: the first one wins
    QList<Grab> m_grabs;
    std::vector<xcb_void_cookie_t> m_uncheckedGrabs; // sent, their answers not yet taken
    bool m_isRefreshPending = false;

    // Auto-repeat: the key code whose press last fired, and the time of its release.
    xcb_keycode_t m_heldKeycode = 0;
    std::optional<xcb_timestamp_t> m_releaseTime;
};
