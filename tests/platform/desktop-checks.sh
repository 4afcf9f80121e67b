#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle on a real desktop as a person works there: one table of checks (at the end), run
# unchanged inside tests/desktop/gnome-session.sh and kde-session.sh:
#   VANTLE_BIN=... gnome-session.sh desktop-checks.sh    (screenshots in $VANTLE_SHOTS or a temp dir)
# The session script exports DESKTOP_DRIVER, a person at that desktop; each verb exits non-zero
# when it could not act or the answer is no:
#   key COMBO | move X Y | click  press and release, held as a hand holds keys | the pointer to X,Y
#                                 in desktop pixels | the left button
#   screenshot FILE               the whole desktop as a PNG
#   focused | windows             "X Y W H SKIPS_TASKBAR APP TITLE" of the window with the keyboard |
#                                 of each window on screen, one a line
#   tray-icons                    "X Y W H" of each tray icon drawn on the desktop's panel, if any
#   picker-shown                  the desktop's colour picker is on screen
#   shortcut-bound COMBO          the desktop has taken the combination
#   paste-target FILE             tests/desktop/paste-target.py: a Wayland program that fills the
#                                 screen, takes the keyboard and appends each paste to FILE
#   background COLOR              paints the paste target "#RRGGBB", the colour the checks pick
set -euo pipefail
vantle=${VANTLE_BIN:?}
drive() { "${DESKTOP_DRIVER:?}" "$@"; }
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/wait-for.sh"
work=$(mktemp -d -p "$XDG_RUNTIME_DIR")
shots=${VANTLE_SHOTS:-$work}
pids=()
trap end_started EXIT
fail() {
    echo "FAIL: $*" >&2
    drive screenshot "$shots/failure-${1%%:*}.png" || true
    tail -n 5 "$work/vantle.log" 2>/dev/null >&2 || true
    exit 1
}
history() { "$vantle" export 2>/dev/null; }
has_picked() { [[ $(history) == *"$1"* ]]; }
paste() { # what the paste target receives at Ctrl+Shift+V
    : >"$work/pasted"
    drive key ctrl+shift+v
    wait_for 5 test -s "$work/pasted"
    cat "$work/pasted"
}
# vantle_window AWK-CONDITION: one of Vantle's windows on screen meets it
vantle_window() { drive windows | awk "tolower(\$6) ~ /^vantle/ && $1 {found = 1; print} END {exit !found}"; }
popup_open() { vantle_window '$3 > 200'; }
popup_closed() { ! popup_open; }
picker_gone() { ! drive picker-shown; }
focused_on() { [[ " $(drive focused) " == *" $1 "* ]]; }
tray() { # tray registered|pick|activate X Y: Vantle's tray item is on the bus with a picture |
    # click its menu's "Pick Color" | click the icon at X,Y, as the desktop's panel sends them
    /usr/bin/python3 - "$pid" "$@" <<'PY'
import sys, dbus
bus = dbus.SessionBus()
prop = lambda obj, iface, key: obj.Get(iface, key, dbus_interface="org.freedesktop.DBus.Properties")
daemon = dbus.Interface(bus.get_object("org.freedesktop.DBus", "/"), "org.freedesktop.DBus")
place = lambda entry: (entry.partition("@")[0], entry.partition("@")[2] or "/StatusNotifierItem")
owner = lambda name: daemon.NameHasOwner(name) and daemon.GetConnectionUnixProcessID(name)  # or a past run's
watcher = bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
entries = prop(watcher, "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems")
name, path = next(place(e) for e in entries if owner(place(e)[0]) == int(sys.argv[1]))
item, sni = bus.get_object(name, path), "org.kde.StatusNotifierItem"
if sys.argv[2] == "registered":
    assert len(prop(item, sni, "IconPixmap")) or prop(item, sni, "IconName"), "no picture"
elif sys.argv[2] == "activate":
    dbus.Interface(item, sni).Activate(int(sys.argv[3]), int(sys.argv[4]))
else:
    menu = dbus.Interface(bus.get_object(name, prop(item, sni, "Menu")), "com.canonical.dbusmenu")
    _, (_, _, entries) = menu.GetLayout(0, -1, ["label"])
    entry = next(e for e in entries if str(e[1].get("label", "")).replace("&", "") == "Pick Color")
    menu.Event(entry[0], "clicked", dbus.String("", variant_level=1), dbus.UInt32(0))
PY
}
start_vantle() { QT_LOGGING_RULES="vantle.*=true" "$vantle" >>"$work/vantle.log" 2>&1 & pids+=($!) pid=$!; }
# Every BindShortcuts a program sends to the GlobalShortcuts portal.
binds() { grep -c 'member=BindShortcuts' "$work/binds.log" || true; }
dbus-monitor --session "interface='org.freedesktop.portal.GlobalShortcuts'" >"$work/binds.log" 2>&1 & pids+=($!)

drive paste-target "$work/pasted" >/dev/null 2>&1 & pids+=($!)
wait_for 20 focused_on paste-target || fail "the paste target never had the focus ($(drive focused))"
# A person who has been through the welcome once.
config=${XDG_CONFIG_HOME:-$HOME/.config}/Vantle
mkdir -p "$config" && printf '[General]\nonboardingShown=true\n' >"$config/Vantle.conf"
start_vantle
wait_for 30 tray registered || fail "Vantle's tray icon never registered with a picture"

# Each check of the table runs on its own (in a subshell, where `fail` ends only that check),
# so that one run says everything that fails.
failures=()
check() { ("$@") || failures+=("$1 ${2:-}"); }

# Where the desktop draws its panel, a good share of the icon's pixels are far from the
# panel's colour (the icon's own corner), once the panel has faded it in.
contrast() {
    drive screenshot "$shots/panel.png"
    convert "$shots/panel.png" -crop "${w}x${h}+${x}+${y}" +repage -colorspace Gray \
        -fx 'abs(u-p{0,0}) > 0.3' -format '%[fx:mean]' info:
}
stands_out() { awk -v c="$(contrast)" 'BEGIN {exit !(c > 0.03)}'; }
tray_visible() {
    read -r x y w h <<<"$(drive tray-icons | head -n 1)"
    [[ -n ${h:-} ]] || { echo "ok: the tray icon has a picture (no panel drawn here)"; return 0; }
    wait_for 10 stands_out || fail "the tray icon is near-invisible ($(contrast) of it stands out)"
    echo "ok: the tray icon stands out from the panel ($(contrast) of its pixels)"
}
# shortcut COMBO: pressed once the desktop has taken it, as a person presses it once it works.
shortcut() { wait_for 30 drive shortcut-bound "$1" && drive key "$1" || fail "the desktop never took $1"; }
# pick NAME COLOR TRIGGER...: COLOR under the pointer, the trigger, the desktop's picker answered
# by a click, then a paste at once into the program that kept the keyboard.
pick() {
    drive background "$2"
    drive move 60 760
    "${@:3}" || fail "$1: could not trigger the pick"
    wait_for 10 drive picker-shown || fail "$1: the desktop's picker never showed"
    drive move 64 764 # the picker answers for where the pointer is once it has moved
    drive click
    wait_for 10 has_picked "$2" || fail "$1: $2 never reached the history: $(history | head -n 3)"
    # The "Copied" capsule: centred, a little above the middle, and never given the keyboard.
    wait_for 5 vantle_window '$4 < 60 && ($1 + $3 / 2 - 640)^2 < 16 && $2 + $4 / 2 > 250 && $2 + $4 / 2 < 350' &&
        capsule=placed || capsule=$(drive windows | grep -iv paste-target)
    focused_on paste-target || fail "$1: the focus moved to \"$(drive focused)\""
    drive screenshot "$shots/$1.png"
    pasted=$(paste)
    [[ $pasted == "$2" ]] || fail "$1: the paste gave $(printf %q "$pasted"), not $2"
    [[ $capsule == placed ]] || fail "$1: no capsule where it belongs: $capsule"
    echo "ok: $1 picked and pasted $2"
}
# Escape cancels: nothing new in the history, the clipboard unchanged.
escape() {
    before="$(paste) $(history)"
    drive background '#102030'
    shortcut alt+shift+c
    wait_for 10 drive picker-shown || fail "escape: the desktop's picker never showed"
    drive key Escape
    wait_for 10 picker_gone || fail "escape: the picker stays open"
    [[ "$(paste) $(history)" == "$before" ]] || fail "escape: the clipboard or the history changed"
    echo "ok: escape cancelled"
}
# The popup: by its shortcut with another window focused, which closes it again; then by a click on
# the tray icon (or, with no panel drawn, the bottom-right corner where Plasma's panel keeps the
# tray) it opens by that point, inside the screen, out of the task bar.
popup() {
    shortcut alt+shift+x
    wait_for 10 popup_open || fail "popup: Alt+Shift+X showed no popup (windows: $(drive windows))"
    drive screenshot "$shots/popup.png"
    drive key alt+shift+x
    wait_for 10 popup_closed && focused_on paste-target || fail "popup: Alt+Shift+X left it open"
    read -r x y w h _ <<<"$(drive tray-icons | head -n 1) 1260 780 20 20"
    x=$((x + w / 2)) y=$((y + h / 2))
    drive move $x $y
    tray activate $x $y
    wait_for 10 popup_open || fail "popup: a click on the tray icon showed no popup"
    read -r px py pw ph skips _ <<<"$(popup_open)"
    awk -v x=$x -v y=$y -v px="$px" -v py="$py" -v pw="$pw" -v ph="$ph" 'BEGIN {
        dx = x < px ? px - x : x > px + pw ? x - px - pw : 0; dy = y < py ? py - y : y > py + ph ? y - py - ph : 0
        exit !(dx < 80 && dy < 80 && px >= 0 && py >= 0 && px + pw <= 1280 && py + ph <= 800) }' ||
        fail "popup: at $px,$py ${pw}x$ph, not by the tray icon at $x,$y"
    [[ $skips == true ]] || fail "popup: it shows in the task bar"
    drive screenshot "$shots/popup-tray.png"
    tray activate $x $y
    wait_for 10 popup_closed || fail "popup: a second click on the tray icon left it open"
    echo "ok: the popup by its shortcut and by the tray"
}
# A restart (SIGTERM, then a new start) ends cleanly and takes back its shortcuts: the first
# press picks, with no BindShortcuts sent (Plasma opens its shortcut settings at each bind).
press_shows_picker() { drive key "$1" && wait_for 3 drive picker-shown; }
restarted() {
    (($1 == 0)) || fail "restart: Vantle ended with status $1 on SIGTERM"
    wait_for 30 tray registered || fail "restart: the tray icon never came back"
    pick restart '#30C0C0' wait_for 30 press_shows_picker alt+shift+c
    (($(binds) == binds_before)) || fail "restart: bound the shortcuts again ($binds_before binds, now $(binds))"
}

check tray_visible
check pick shortcut '#3366CC' shortcut alt+shift+c
check pick tray '#CC3366' tray pick
check pick command '#66CC33' "$vantle" pick
check pick shortcut-2 '#A05020' shortcut alt+shift+c
check pick shortcut-3 '#2050A0' shortcut alt+shift+c
check escape
check popup
binds_before=$(binds) status=0
kill -TERM "$pid" && wait "$pid" || status=$?
start_vantle
check restarted "$status"
((${#failures[@]} == 0)) || { echo "FAILED: ${failures[*]}" >&2; exit 1; }
echo "PASS"
