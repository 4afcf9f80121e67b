#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle on a Wayland desktop as a person meets it, inside tests/desktop/sway-session.sh
# (headless sway, nobody focused, private session bus): the real xdg-desktop-portal frontend
# with our test backend behind it, the tray program on QT_QPA_PLATFORM=wayland, a shortcut
# pressed at the desktop, `vantle pick` from another process, a cancelled pick; the clipboard
# read back with wl-paste, the history with `vantle export`; a restart that takes back its keys.
#   VANTLE_BIN=... sway-session.sh wayland-end-to-end.sh PORTAL_TEST_BACKEND
set -euo pipefail

vantle=${VANTLE_BIN:?}
backend=${1:?usage: wayland-end-to-end.sh PORTAL_TEST_BACKEND}
frontend=/usr/libexec/xdg-desktop-portal
[[ -x $frontend ]] || { echo "SKIP: xdg-desktop-portal is not installed" >&2; exit 77; }

source "$(dirname "${BASH_SOURCE[0]}")/../desktop/test-home.sh"
need_tools wl-paste wl-copy dbus-send
mkdir -p "$home/portals"
on_failure() { tail -n 20 "$home/vantle.log" >&2 2>/dev/null; }
bus_call() { # bus_call DEST PATH INTERFACE.METHOD ARGS...
    dbus-send --session --print-reply=literal --dest="$1" "$2" "$3" "${@:4}"
}
owner_pid() {
    bus_call org.freedesktop.DBus /org/freedesktop/DBus org.freedesktop.DBus.GetConnectionUnixProcessID \
        "string:$1" 2>/dev/null | awk '{print $2}'
}
owned_by() { [[ $(owner_pid "$1") == "$2" ]]; }
portal() { bus_call org.freedesktop.impl.portal.desktop.vantletest /org/vantle/TestPortal "org.vantle.TestPortal.$1" "${@:2}"; }
picks() { portal Picks | awk '{print $2}'; }
picks_above() { (($(picks) > $1)); }
bound() { portal BoundShortcuts | grep -qw "$1"; }
clipboard() { wl-paste --no-newline 2>/dev/null; }
clipboard_is() { [[ $(clipboard) == "$1" ]]; }
copy_sentinel() { wl-copy "$1" && wait_for 10 clipboard_is "$1" || fail "wl-copy did not set the clipboard"; }
history() { "$vantle" export 2>/dev/null; }

# The portal: our backend first, then the frontend that finds it through the .portal file.
"$backend" "$home/portals" &
pids+=($!)
backend_pid=$!
wait_for 20 owned_by org.freedesktop.impl.portal.desktop.vantletest "$backend_pid" || fail "the test backend did not start"
XDG_DESKTOP_PORTAL_DIR="$home/portals" XDG_CURRENT_DESKTOP=vantletest "$frontend" --replace >"$home/portal.log" 2>&1 &
pids+=($!)
frontend_pid=$!
wait_for 20 owned_by org.freedesktop.portal.Desktop "$frontend_pid" || fail "xdg-desktop-portal did not start"

copy_sentinel sentinel
"$vantle" >"$home/vantle.log" 2>&1 &
pids+=($!)
pid=$!
# The tray program binds its shortcuts at the desktop as it starts.
wait_for 30 bound pick || fail "Vantle bound no pick shortcut (bound: $(portal BoundShortcuts))"

# The desktop reports the pick shortcut: the portal's colour lands on the clipboard, with no
# window of ours focused, and in the history.
portal SetPick uint32:0 double:0.9999 double:0.5 double:0.00196 >/dev/null
portal Activate string:pick >/dev/null
wait_for 20 clipboard_is '#FF8000' || fail "after the shortcut the clipboard holds \"$(clipboard)\", not #FF8000"
[[ $(history) == *"#FF8000"* ]] || fail "the history does not hold #FF8000: $(history)"

# A pick cancelled at the portal changes neither the clipboard nor the history.
copy_sentinel cancelled-sentinel
before=$(history)
portal SetPick uint32:1 double:0 double:0 double:0 >/dev/null
count=$(picks)
timeout 20 "$vantle" pick || fail "vantle pick failed"
wait_for 20 picks_above "$count" || fail "vantle pick did not reach the portal"
sleep 0.5 # the Response travels on to Vantle; nothing may follow it
clipboard_is cancelled-sentinel || fail "a cancelled pick changed the clipboard to \"$(clipboard)\""
[[ $(history) == "$before" ]] || fail "a cancelled pick changed the history"

# `vantle pick` from another process: the same copy as the shortcut's.
portal SetPick uint32:0 double:0.9999 double:0.5 double:0.00196 >/dev/null
timeout 20 "$vantle" pick || fail "vantle pick failed"
wait_for 20 clipboard_is '#FF8000' || fail "after vantle pick the clipboard holds \"$(clipboard)\", not #FF8000"

# Another colour by shortcut replaces it on the clipboard and joins the history.
portal SetPick uint32:0 double:0 double:0.5 double:1 >/dev/null
portal Activate string:pick >/dev/null
wait_for 20 clipboard_is '#0080FF' || fail "the second copy did not replace the first: \"$(clipboard)\""
[[ $(history) == *"#0080FF"*"#FF8000"* || $(history) == *"#FF8000"*"#0080FF"* ]] ||
    fail "the history does not hold both colours: $(history)"

# Every press of a series is a pick, as a hand presses the shortcut again and again: the desktop
# reports each press and its release, and no press may be taken for the last one still held.
for press in "1 0 0 #FF0000" "0 1 0 #00FF00" "0 0 1 #0000FF" "1 1 0 #FFFF00"; do
    read -r red green blue hex <<<"$press"
    portal SetPick uint32:0 "double:$red" "double:$green" "double:$blue" >/dev/null
    portal Activate string:pick >/dev/null
    wait_for 20 clipboard_is "$hex" || fail "a press of the series was lost: the clipboard holds \"$(clipboard)\", not $hex"
done

# A restart takes back the keys of the previous run without binding again: the desktop keeps
# them under the session's token, and a bind would open its shortcut settings at every start.
binds() { portal Binds | awk '{print $2}'; }
binds_before=$(binds)
kill -TERM "$pid"
wait "$pid" || fail "Vantle ended with status $? on SIGTERM"
"$vantle" >"$home/vantle.log" 2>&1 &
pids+=($!)
pid=$!
portal SetPick uint32:0 double:0 double:1 double:1 >/dev/null
# Pressed again until Vantle, still starting, has its session.
press_picks() { portal Activate string:pick | grep -q true && wait_for 2 clipboard_is '#00FFFF'; }
wait_for 30 press_picks || fail "after a restart the pick shortcut did not pick: the desktop holds $(portal BoundShortcuts), the clipboard \"$(clipboard)\""
[[ $(binds) == "$binds_before" ]] || fail "a restart bound the shortcuts again ($binds_before binds before, $(binds) after)"

kill -TERM "$pid"
wait "$pid" || fail "Vantle ended with status $? on SIGTERM"
echo "PASS"
