#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle on a real desktop as a person works there, the same table on every desktop: run inside
# a session script that exports DESKTOP_DRIVER (verbs: tests/desktop/gnome-session.sh).
#   VANTLE_BIN=... gnome-session.sh desktop-checks.sh
# Each pick (the shortcut, the tray menu's Pick Color, `vantle pick`) is answered by the
# desktop's own picker over a freshly painted background and pasted at once into another
# Wayland program that kept the focus; the popup shortcut shows the popup; Escape cancels; the
# tray icon stands out from the panel. Screenshots land in $VANTLE_SHOTS (default: a temp dir).
set -euo pipefail
vantle=${VANTLE_BIN:?}
drive() { "${DESKTOP_DRIVER:?}" "$@"; }
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/wait-for.sh"
work=$(mktemp -d -p "$XDG_RUNTIME_DIR")
shots=${VANTLE_SHOTS:-$work}
pids=()
trap 'kill "${pids[@]}" 2>/dev/null; wait' EXIT
fail() {
    echo "FAIL: $*" >&2
    drive screenshot "$shots/failure-${1%%:*}.png" || true
    exit 1
}
history() { "$vantle" export 2>/dev/null; }
has_picked() { [[ $(history) == *"$1"* ]]; }
paste() { # paste: what Ctrl+Shift+V types into the terminal with the focus (appended to a file)
    : >"$work/pasted"
    drive key ctrl+shift+v
    drive key Return
    wait_for 5 test -s "$work/pasted"
    cat "$work/pasted"
}
capsule_placed() {
    drive windows | awk 'tolower($5) ~ /^vantle/ && $4 < 60 && ($1 + $3 / 2 - 640)^2 < 16 && $2 + $4 / 2 > 250 && $2 + $4 / 2 < 350 {
        found = 1 } END { exit !found }'
}
focused_on() { [[ " $(drive focused) " == *" $1 "* ]]; }
tray() { # tray registered|pick: Vantle's StatusNotifierItem is on the bus | click its "Pick Color"
    /usr/bin/python3 - "$1" "$pid" <<'PY'
import sys, dbus
bus = dbus.SessionBus()
watcher = bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
items = watcher.Get("org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems",
                    dbus_interface="org.freedesktop.DBus.Properties")
daemon = dbus.Interface(bus.get_object("org.freedesktop.DBus", "/"), "org.freedesktop.DBus")
name, path = next(i.split("@", 1) for i in items
                  if daemon.GetConnectionUnixProcessID(i.split("@")[0]) == int(sys.argv[2]))
if sys.argv[1] == "pick":
    item = bus.get_object(name, path)
    menu_path = item.Get("org.kde.StatusNotifierItem", "Menu", dbus_interface="org.freedesktop.DBus.Properties")
    menu = dbus.Interface(bus.get_object(name, menu_path), "com.canonical.dbusmenu")
    _, (_, _, entries) = menu.GetLayout(0, -1, ["label"])
    entry = next(e for e in entries if str(e[1].get("label", "")).replace("&", "") == "Pick Color")
    menu.Event(entry[0], "clicked", dbus.String("", variant_level=1), dbus.UInt32(0))
PY
}

# Another Wayland program with the keyboard: a terminal that writes what is pasted to a file.
foot -a paste-target sh -c "cat >> '$work/pasted'" >/dev/null 2>&1 &
pids+=($!)
wait_for 20 focused_on paste-target || fail "the paste target never had the focus ($(drive focused))"

# A person who has been through the welcome once.
config=${XDG_CONFIG_HOME:-$HOME/.config}/Vantle
mkdir -p "$config" && printf '[General]\nonboardingShown=true\n' >"$config/Vantle.conf"
QT_LOGGING_RULES="vantle.*=true" "$vantle" >"$work/vantle.log" 2>&1 &
pids+=($!)
pid=$!
wait_for 30 tray registered || fail "Vantle's tray icon never registered"

# Each check of the table runs on its own (in a subshell, where `fail` ends only that check),
# so that one run says everything that fails.
failures=()
check() { ("$@") || failures+=("$1 ${2:-}"); }

# The tray icon stands out from the panel it sits on: a good share of its pixels are far from
# the panel's colour (the icon's own corner).
tray_visible() {
    drive screenshot "$shots/panel.png"
    read -r x y w h <<<"$(drive tray-icons | head -n 1)"
    [[ -n ${h:-} ]] || fail "no tray icon on the panel"
    contrast=$(convert "$shots/panel.png" -crop "${w}x${h}+${x}+${y}" +repage -colorspace Gray \
        -fx 'abs(u-p{0,0}) > 0.3' -format '%[fx:mean]' info:)
    awk -v c="$contrast" 'BEGIN {exit !(c > 0.03)}' || fail "the tray icon is near-invisible ($contrast of it stands out)"
    echo "ok: the tray icon stands out from the panel ($contrast of its pixels)"
}
# shortcut COMBO: pressed once the desktop has taken it, as a person presses it once it works.
shortcut() { wait_for 30 drive shortcut-bound "$1" && drive key "$1" || fail "the desktop never took $1"; }
# pick NAME COLOR TRIGGER...: paint COLOR, trigger, let the desktop's picker answer, paste at once.
pick() {
    drive background "$2"
    drive move 60 760
    "${@:3}" || fail "$1: could not trigger the pick"
    wait_for 10 drive picker-shown || fail "$1: the desktop's picker never showed"
    drive move 64 764 # the picker answers for where the pointer is once it has moved
    sleep 0.05
    drive click
    wait_for 10 has_picked "$2" || fail "$1: $2 never reached the history: $(history | head -n 3)"
    # The "Copied" capsule: centred, a little above the middle, and never given the keyboard.
    wait_for 5 capsule_placed && capsule=placed || capsule=$(drive windows | grep -iv paste-target)
    focused_on paste-target || fail "$1: the focus moved to \"$(drive focused)\""
    drive screenshot "$shots/$1.png"
    pasted=$(paste)
    [[ $pasted == "$2" ]] || fail "$1: the paste gave \"$pasted\", not $2"
    [[ $capsule == placed ]] || fail "$1: no capsule where it belongs: $capsule"
    echo "ok: $1 picked and pasted $2"
}
# Escape cancels: nothing new in the history, the clipboard unchanged.
escape() {
    before=$(paste)
    drive background '#102030'
    "$vantle" pick
    wait_for 10 drive picker-shown || fail "escape: the desktop's picker never showed"
    drive key Escape
    wait_for 10 bash -c "! '$DESKTOP_DRIVER' picker-shown" || fail "escape: the picker stays open"
    ! has_picked '#102030' || fail "escape: a cancelled pick reached the history"
    after=$(paste)
    [[ $after == "$before" ]] || fail "escape: the clipboard changed from \"$before\" to \"$after\""
    echo "ok: escape cancelled"
}
# The popup shortcut, with the terminal focused, brings the popup up.
popup() {
    shortcut alt+shift+x
    wait_for 10 popup_shown || fail "popup: Alt+Shift+X showed no popup (windows: $(drive windows))"
    drive screenshot "$shots/popup.png"
    echo "ok: the popup shortcut showed the popup"
}
popup_shown() { drive windows | awk 'tolower($5) ~ /^vantle/ && $3 > 200 {found = 1} END {exit !found}'; }

check tray_visible
check pick shortcut '#3366CC' shortcut alt+shift+c
check pick tray '#CC3366' tray pick
check pick command '#66CC33' "$vantle" pick
check pick shortcut-again '#A05020' shortcut alt+shift+c
check escape
check popup
((${#failures[@]} == 0)) || { echo "FAILED: ${failures[*]}" >&2; exit 1; }
echo "PASS"
