// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/XcbShortcutBackend.h"

#include "hotkeys/KeyCodes.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstdlib>
#include <cstring>

#include <xcb/xcb_keysyms.h>
#include <xcb/xinput.h>

namespace {

constexpr quint32 numLockKeysym = 0xff7f;
constexpr quint32 scrollLockKeysym = 0xff14;
constexpr quint32 altKeysyms[] = { 0xffe9, 0xffea }; // Alt_L, Alt_R
constexpr quint32 superKeysyms[] = { 0xffeb, 0xffec }; // Super_L, Super_R
constexpr quint8 xkbNewKeyboardNotify = 0;
constexpr quint8 xkbMapNotify = 1;

template<typename Reply> struct FreeReply {
    void operator()(Reply *reply) const { std::free(reply); }
};
template<typename Reply> using ReplyPtr = std::unique_ptr<Reply, FreeReply<Reply>>;

} // namespace

std::unique_ptr<XcbShortcutBackend> XcbShortcutBackend::create(QObject *parent)
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->connection())
        return nullptr;
    xcb_connection_t *connection = x11->connection();
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (!screen)
        return nullptr;
    return std::make_unique<XcbShortcutBackend>(connection, screen->root, parent);
}

XcbShortcutBackend::XcbShortcutBackend(xcb_connection_t *connection, xcb_window_t root, QObject *parent)
    : GlobalShortcutBackend(parent)
    , m_connection(connection)
    , m_root(root)
{
    // XKB announces layout changes with its own events; know their number to notice them. Its
    // answer comes back with the keyboard mapping's: one wait for the server, not two.
    static constexpr char xkbName[] = "XKEYBOARD";
    const xcb_query_extension_cookie_t xkbCookie
        = xcb_query_extension(m_connection, sizeof xkbName - 1, xkbName);
    readKeyboardMapping();
    ReplyPtr<xcb_query_extension_reply_t> xkb(xcb_query_extension_reply(m_connection, xkbCookie, nullptr));
    if (xkb && xkb->present)
        m_xkbFirstEvent = xkb->first_event;
    // XInput 2 raw events tell of a key's release wherever the release itself is delivered.
    const xcb_query_extension_reply_t *xinput = xcb_get_extension_data(m_connection, &xcb_input_id);
    if (xinput && xinput->present)
        m_xinputOpcode = xinput->major_opcode;
    QCoreApplication::instance()->installNativeEventFilter(this);
}

XcbShortcutBackend::~XcbShortcutBackend()
{
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(this);
    watchRelease(false);
    releaseAllGrabs();
    collectGrabAnswers();
    if (m_symbols)
        xcb_key_symbols_free(m_symbols);
}

void XcbShortcutBackend::readKeyboardMapping()
{
    if (m_symbols)
        xcb_key_symbols_free(m_symbols);
    m_symbols = xcb_key_symbols_alloc(m_connection);

    m_numLockMask = m_scrollLockMask = 0;
    m_altMask = XCB_MOD_MASK_1;
    m_superMask = XCB_MOD_MASK_4;
    ReplyPtr<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(m_connection, xcb_get_modifier_mapping(m_connection), nullptr));
    if (!mapping || !m_symbols)
        return;
    const xcb_keycode_t *keycodes = xcb_get_modifier_mapping_keycodes(mapping.get());
    const int perModifier = mapping->keycodes_per_modifier;
    bool isAltFound = false;
    bool isSuperFound = false;
    // Shift, Lock and Control have fixed bits; Mod1..Mod5 are whatever the mapping says.
    for (int modifier = 3; modifier < 8; ++modifier) {
        const quint16 mask = quint16(1u << modifier);
        for (int i = 0; i < perModifier; ++i) {
            const xcb_keycode_t keycode = keycodes[modifier * perModifier + i];
            if (keycode == 0)
                continue;
            for (int column = 0; column < 4; ++column) {
                const xcb_keysym_t keysym = xcb_key_symbols_get_keysym(m_symbols, keycode, column);
                if (keysym == numLockKeysym)
                    m_numLockMask = mask;
                else if (keysym == scrollLockKeysym)
                    m_scrollLockMask = mask;
                else if (!isAltFound && (keysym == altKeysyms[0] || keysym == altKeysyms[1])) {
                    m_altMask = mask;
                    isAltFound = true;
                } else if (!isSuperFound && (keysym == superKeysyms[0] || keysym == superKeysyms[1])) {
                    m_superMask = mask;
                    isSuperFound = true;
                }
            }
        }
    }
}

QList<quint16> XcbShortcutBackend::lockCombinations() const
{
    QList<quint16> combinations { 0 };
    for (const quint16 lock : { quint16(XCB_MOD_MASK_LOCK), m_numLockMask, m_scrollLockMask }) {
        if (lock == 0 || lock == m_altMask || lock == m_superMask)
            continue;
        const qsizetype count = combinations.size();
        for (qsizetype i = 0; i < count; ++i)
            combinations << quint16(combinations[i] | lock);
    }
    return combinations;
}

quint16 XcbShortcutBackend::relevantModifiers() const
{
    const quint16 all = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_2
        | XCB_MOD_MASK_3 | XCB_MOD_MASK_4 | XCB_MOD_MASK_5;
    return all & ~(m_numLockMask | m_scrollLockMask);
}

QList<XcbShortcutBackend::Grab> XcbShortcutBackend::wantedGrabs() const
{
    QList<Grab> grabs;
    const KeyCodes::X11ModifierBits bits { XCB_MOD_MASK_SHIFT, XCB_MOD_MASK_CONTROL, m_altMask, m_superMask };
    for (const Registration &registration : m_registrations) {
        const quint16 modifiers = KeyCodes::x11Modifiers(registration.modifiers, bits);
        for (const xcb_keycode_t keycode : registration.keycodes) {
            const Grab grab { keycode, modifiers };
            if (!grabs.contains(grab))
                grabs << grab;
        }
    }
    return grabs;
}

void XcbShortcutBackend::syncGrabs()
{
    const QList<Grab> wanted = wantedGrabs();
    const QList<quint16> locks = lockCombinations();

    for (const Grab &grab : std::as_const(m_grabs)) {
        if (wanted.contains(grab))
            continue;
        for (const quint16 lock : locks)
            xcb_ungrab_key(m_connection, grab.keycode, m_root, grab.modifiers | lock);
    }

    // Checked requests: a BadAccess (another client holds the combination) comes back to us
    // instead of the event queue, where it would be logged as an X error. The grabs are in
    // force once sent, before any later request of ours (the tray icon's, for one); their
    // answers are collected on the next turn of the event loop, so nothing waits for them.
    const bool isCollectionPending = !m_uncheckedGrabs.empty();
    for (const Grab &grab : wanted) {
        if (m_grabs.contains(grab))
            continue;
        for (const quint16 lock : locks) {
            m_uncheckedGrabs.push_back(xcb_grab_key_checked(m_connection, 1, m_root, grab.modifiers | lock,
                grab.keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        }
    }
    m_grabs = wanted;
    xcb_flush(m_connection);
    if (!isCollectionPending && !m_uncheckedGrabs.empty())
        QMetaObject::invokeMethod(this, &XcbShortcutBackend::collectGrabAnswers, Qt::QueuedConnection);
}

void XcbShortcutBackend::collectGrabAnswers()
{
    for (const xcb_void_cookie_t cookie : m_uncheckedGrabs)
        std::free(xcb_request_check(m_connection, cookie));
    m_uncheckedGrabs.clear();
}

void XcbShortcutBackend::releaseAllGrabs()
{
    const QList<quint16> locks = lockCombinations();
    for (const Grab &grab : std::as_const(m_grabs)) {
        for (const quint16 lock : locks)
            xcb_ungrab_key(m_connection, grab.keycode, m_root, grab.modifiers | lock);
    }
    m_grabs.clear();
    xcb_flush(m_connection);
}

void XcbShortcutBackend::registerShortcut(const GlobalShortcut &shortcut)
{
    unregisterShortcut(shortcut.id);
    if (!KeyCodes::keysymForKeyCode(shortcut.keyCode) || !m_symbols)
        return;
    m_registrations.push_back(
        Registration { shortcut.id, shortcut.keyCode, shortcut.modifiers, keycodesForKey(shortcut.keyCode) });
    syncGrabs();
}

QList<xcb_keycode_t> XcbShortcutBackend::keycodesForKey(qint64 keyCode) const
{
    QList<xcb_keycode_t> result;
    const std::optional<quint32> keysym = KeyCodes::keysymForKeyCode(keyCode);
    if (!keysym || !m_symbols)
        return result;
    if (xcb_keycode_t *keycodes = xcb_key_symbols_get_keycode(m_symbols, *keysym)) {
        for (xcb_keycode_t *keycode = keycodes; *keycode != XCB_NO_SYMBOL; ++keycode) {
            if (!result.contains(*keycode))
                result << *keycode;
        }
        std::free(keycodes);
    }
    // A keymap that gives the key no keysym at all (F19 and F24 in the standard one) still
    // delivers its presses: grab the key itself.
    if (result.isEmpty()) {
        if (const std::optional<quint32> physical = KeyCodes::xKeycodeForKeyCode(keyCode))
            result << xcb_keycode_t(*physical);
    }
    return result;
}

void XcbShortcutBackend::unregisterShortcut(int id)
{
    const auto removed = std::erase_if(m_registrations, [id](const Registration &r) { return r.id == id; });
    if (removed > 0)
        syncGrabs();
}

void XcbShortcutBackend::scheduleMappingRefresh()
{
    // A layout switch sends a burst of notifications; grab again once, after the burst.
    if (m_isRefreshPending)
        return;
    m_isRefreshPending = true;
    QMetaObject::invokeMethod(this, &XcbShortcutBackend::refreshMapping, Qt::QueuedConnection);
}

void XcbShortcutBackend::refreshMapping()
{
    m_isRefreshPending = false;
    releaseAllGrabs(); // with the old lock bits and key codes
    readKeyboardMapping();
    for (Registration &registration : m_registrations)
        registration.keycodes = keycodesForKey(registration.keyCode);
    syncGrabs();
}

void XcbShortcutBackend::watchRelease(bool isOn)
{
    if (m_xinputOpcode == 0 || m_isWatchingRelease == isOn)
        return;
    // Raw events reach a listener on the root whoever holds the keyboard: the loupe, the
    // popup, or another program once our grab has ended. Listened to only while a shortcut's
    // key is down, so the rest of the day's typing never wakes Vantle.
    struct {
        xcb_input_event_mask_t head;
        uint32_t bits;
    } mask { { XCB_INPUT_DEVICE_ALL_MASTER, 1 },
        isOn ? uint32_t(XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE) : 0u };
    xcb_input_xi_select_events(m_connection, m_root, 1, &mask.head);
    xcb_flush(m_connection);
    m_isWatchingRelease = isOn;
}

void XcbShortcutBackend::noteRelease(xcb_keycode_t keycode, xcb_timestamp_t time)
{
    if (keycode != m_heldKeycode || m_heldKeycode == 0)
        return;
    m_releaseTime = time;
}

bool XcbShortcutBackend::handleKey(const xcb_key_press_event_t *event, bool isPress)
{
    // Presses reach us on the root through the passive grabs, or on one of our own windows
    // while it holds the keyboard (the popup, the loupe): the shortcut works from there too.
    if (m_registrations.empty())
        return false;
    const xcb_keycode_t keycode = event->detail;

    if (!isPress) {
        noteRelease(keycode, event->time);
        return event->event == m_root
            && m_grabs.contains(Grab { keycode, quint16(event->state & relevantModifiers()) });
    }

    const quint16 state = event->state & relevantModifiers();
    const KeyCodes::X11ModifierBits bits { XCB_MOD_MASK_SHIFT, XCB_MOD_MASK_CONTROL, m_altMask, m_superMask };
    for (const Registration &registration : m_registrations) {
        if (!registration.keycodes.contains(keycode)
            || KeyCodes::x11Modifiers(registration.modifiers, bits) != state)
            continue;
        // Auto-repeat: either presses of the held key without a release in between, or a
        // release and a press carrying the same time stamp.
        const bool isRepeat = keycode == m_heldKeycode && (!m_releaseTime || *m_releaseTime == event->time);
        m_heldKeycode = keycode;
        m_releaseTime.reset();
        if (!isRepeat) {
            watchRelease(true);
            Q_EMIT activated(registration.id);
        }
        return true;
    }
    return false;
}

bool XcbShortcutBackend::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const quint8 type = event->response_type & 0x7f;
    switch (type) {
    case XCB_KEY_PRESS:
        return handleKey(reinterpret_cast<const xcb_key_press_event_t *>(event), true);
    case XCB_KEY_RELEASE:
        return handleKey(reinterpret_cast<const xcb_key_release_event_t *>(event), false);
    case XCB_GE_GENERIC: {
        const auto *generic = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
        if (m_xinputOpcode == 0 || generic->extension != m_xinputOpcode
            || generic->event_type != XCB_INPUT_RAW_KEY_RELEASE)
            return false;
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_release_event_t *>(event);
        if (m_heldKeycode != 0 && xcb_keycode_t(raw->detail) == m_heldKeycode) {
            noteRelease(m_heldKeycode, raw->time);
            watchRelease(false);
        }
        return true; // only ever asked for by us
    }
    case XCB_MAPPING_NOTIFY:
        if (reinterpret_cast<const xcb_mapping_notify_event_t *>(event)->request != XCB_MAPPING_POINTER)
            scheduleMappingRefresh();
        return false; // Qt's keyboard needs it too
    default:
        if (m_xkbFirstEvent != 0 && type == m_xkbFirstEvent) {
            // The second byte of every XKB event is its kind.
            const quint8 xkbType = reinterpret_cast<const quint8 *>(event)[1];
            if (xkbType == xkbNewKeyboardNotify || xkbType == xkbMapNotify)
                scheduleMappingRefresh();
        }
        return false;
    }
}
