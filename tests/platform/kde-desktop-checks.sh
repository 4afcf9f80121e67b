#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle on KDE Plasma as a person works there, inside tests/desktop/kde-session.sh; the rows of
# the desktop check table (desktop-checks.sh), driven through DESKTOP_DRIVER alone:
#   VANTLE_BIN=... kde-session.sh kde-desktop-checks.sh
# A Wayland window keeps the keyboard and fills the desktop with a known colour; each pick (the
# pick shortcut, the tray menu's Pick Color, `vantle pick`) is answered by KWin's own picker
# through the KDE portal and pasted at once into that window; Escape cancels; the popup shortcut
# and a click on the tray icon bring the popup up under the pointer, out of the task bar; the
# tray icon is on the watcher with a picture. Screenshots land in $VANTLE_SHOTS (or a temp dir).
set -euo pipefail
vantle=${VANTLE_BIN:?}
drive() { "${DESKTOP_DRIVER:?}" "$@"; }
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/wait-for.sh"
work=$(mktemp -d -p "$XDG_RUNTIME_DIR")
shots=${VANTLE_SHOTS:-$work}
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data
mkdir -p "$XDG_CONFIG_HOME/Vantle"
printf '[General]\nonboardingShown=true\n' >"$XDG_CONFIG_HOME/Vantle/Vantle.conf"
pids=()
trap end_started EXIT
fail() {
    echo "FAIL: $*" >&2
    drive screenshot "$shots/failure.png" || true
    tail -n 20 "$work/vantle.log" >&2 || true
    exit 1
}
call() { dbus-send --session --print-reply=literal --dest="$1" "$2" "$3" "${@:4}"; }
history() { "$vantle" export 2>/dev/null; }
has_picked() { [[ $(history) == *"$1"* ]]; }
pasted_is() { [[ $(tail -n 1 "$work/pasted" 2>/dev/null) == "$1" ]]; }
focused_on() { drive focused | grep -q "^$1"; }
background() { call org.vantle.PasteTarget / org.vantle.PasteTarget.SetColor "string:$1" >/dev/null; }
# KWin's picker runs from the portal's call to org.kde.kwin.ColorPicker until its answer.
pickers() { grep -c 'member=pick$' "$work/pickers.log" || true; }
picker_called_after() { (($(pickers) > $1)); }
item() { call org.kde.StatusNotifierWatcher /StatusNotifierWatcher org.freedesktop.DBus.Properties.Get \
    string:org.kde.StatusNotifierWatcher string:RegisteredStatusNotifierItems | grep -o ':[0-9.]*' | tail -n 1; }
item_property() { call "$(item)" /StatusNotifierItem org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierItem "string:$1"; }
tray_pick() { # the tray menu's "Pick Color", as Plasma's menu sends its click
    local menu entry
    menu=$(item_property Menu | grep -o '/[^ ]*')
    entry=$(call "$(item)" "$menu" com.canonical.dbusmenu.GetLayout int32:0 int32:-1 array:string:label |
        grep -o 'int32 [0-9]*\|Pick Color' | grep -B1 'Pick Color' | head -n 1 | awk '{print $2}')
    [[ -n $entry ]] && call "$(item)" "$menu" com.canonical.dbusmenu.Event "int32:$entry" string:clicked \
        variant:string: uint32:0 >/dev/null
}
tray_click() { call "$(item)" /StatusNotifierItem org.kde.StatusNotifierItem.Activate "int32:$1" "int32:$2" >/dev/null; }
# Plasma keeps a session's shortcuts as a group of its global shortcuts: Alt+Shift+C is
# 0x0A000043 there, Alt+Shift+X 0x0A000058.
shortcut_bound() {
    local component
    for component in $(call org.kde.kglobalaccel /kglobalaccel org.kde.KGlobalAccel.allComponents); do
        call org.kde.kglobalaccel "$component" org.kde.kglobalaccel.Component.allShortcutInfos |
            grep -qw "$1" && return 0
    done
    return 1
}

dbus-monitor --session "type='method_call',interface='org.kde.kwin.ColorPicker'" >"$work/pickers.log" 2>&1 &
pids+=($!)
drive paste-target "$work/pasted" '#808080' &
pids+=($!)
wait_for 20 focused_on paste-target || fail "the paste target never had the focus ($(drive focused))"
"$vantle" >"$work/vantle.log" 2>&1 &
pids+=($!)
wait_for 30 item || fail "Vantle's tray icon never registered with the tray watcher"
[[ $(item_property IconPixmap | wc -c) -gt 200 || -n $(item_property IconName | grep -o '[a-z-]\{3,\}') ]] ||
    fail "the tray icon has no picture"
wait_for 30 shortcut_bound 167772227 || fail "the desktop never took the pick shortcut Alt+Shift+C"
wait_for 30 shortcut_bound 167772248 || fail "the desktop never took the popup shortcut Alt+Shift+X"

# pick NAME COLOR TRIGGER...: the colour under the pointer, the trigger, KWin's picker answered
# by a click, then a paste at once into the window that kept the keyboard.
pick() {
    background "$2"
    drive move 200 600
    local before
    before=$(pickers)
    "${@:3}" || fail "$1: could not trigger the pick"
    wait_for 10 picker_called_after "$before" || fail "$1: KWin's picker was never asked for"
    drive click
    wait_for 10 has_picked "$2" || fail "$1: $2 never reached the history: $(history | head -n 3)"
    drive key ctrl+shift+v
    wait_for 5 pasted_is "$2" ||
        fail "$1: the paste right after the pick gave \"$(tail -n 1 "$work/pasted")\", not $2 (focus: $(drive focused))"
    drive screenshot "$shots/$1.png"
    echo "ok: $1 picked and pasted $2"
}
pick shortcut '#3366CC' drive key alt+shift+c
pick tray '#CC3366' tray_pick
pick command '#66CC33' "$vantle" pick
pick shortcut-again '#A05020' drive key alt+shift+c

# Escape cancels: nothing new in the history, the clipboard keeps the last pick.
background '#102030'
before=$(pickers)
drive key alt+shift+c
wait_for 10 picker_called_after "$before" || fail "escape: KWin's picker was never asked for"
drive key Escape
drive key ctrl+shift+v
wait_for 5 pasted_is '#A05020' || fail "escape: the clipboard changed to \"$(tail -n 1 "$work/pasted")\""
has_picked '#102030' && fail "escape: a cancelled pick reached the history"
echo "ok: escape cancelled"

# The popup: by its shortcut with another window focused, then by a click on the tray icon in
# the bottom-right corner, where it opens under the pointer, above the edge, out of the task bar.
drive key alt+shift+x
wait_for 10 focused_on vantle || fail "popup: Alt+Shift+X showed no popup (focus: $(drive focused))"
drive key Escape
wait_for 10 focused_on paste-target || fail "popup: Escape left the focus on \"$(drive focused)\""
drive move 1270 790
tray_click 1270 790
wait_for 10 focused_on vantle || fail "popup: a click on the tray icon showed no popup (focus: $(drive focused))"
read -r x y w h skips <<<"$(drive focused geometry)"
((x + w >= 1270 - 40 && y + h >= 790 - 40 && x + w <= 1280 && y + h <= 800)) ||
    fail "popup: at $x,$y ${w}x$h, not by the tray icon at 1270,790"
[[ $skips == true ]] || fail "popup: it shows in the task bar"
drive screenshot "$shots/popup.png"
echo "PASS"
