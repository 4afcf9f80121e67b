#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle as a person meets it from start to quit, on the desktop of tests/desktop/x11-session.sh.
#   VANTLE_BIN=... x11-session.sh tray-end-to-end.sh [SHOT_DIR]
set -euo pipefail

shots=${1:-}
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/vantle-windows.sh"
need_tools import convert xsetroot
# Fresh settings but for the dot in the tray, which this test looks at, and a history long
# enough that the popup's list must scroll rather than run over the tray icon.
printf '[General]\nshowColorDot=true\n' >"$XDG_CONFIG_HOME/Vantle/Vantle.conf"
for i in $(seq 10 49); do
    printf '{"id":"%08d-0000-4000-8000-000000000000","red":0.%s,"green":0.5,"blue":0.5,"alpha":1,"isPinned":false,"timestamp":%s}\n' \
        "$i" "$i" "$((700000000 - i))"
done | paste -sd, | sed 's/^/[/; s/$/]/' >"$XDG_CONFIG_HOME/Vantle/colorHistory.json"

on_failure() {
    shot failure
    tail -n 20 "$home/vantle.log" >&2
    xwininfo -root -tree | grep -iE '"(trayer|vantle)"' >&2
}
press() { xdotool key --delay 80 "$1"; } # a person's press: each key held 80 ms
# The tray icon: the window trayer embedded for us.
tray_icon() {
    local tray
    for tray in $(xdotool search --class trayer); do
        xwininfo -tree -id "$tray" | awk '/\("vantle" "Vantle"\)/ {print $1; exit}'
    done | head -n1 | grep .
}
icon_shows() { # icon_shows HEX: the tray icon has pixels of that colour
    local pixels # read whole first: grep -q would end import early, a failure under pipefail
    pixels=$(import -window "$(tray_icon)" -depth 8 txt:- 2>/dev/null) && grep -qi "#$1" <<<"$pixels"
}

"$vantle" 2>>"$home/vantle.log" &
pid=$! && pids+=("$pid")
wait_for 20 tray_icon || fail "no tray icon appeared"
wait_for 20 xdotool search --onlyvisible --name '^Welcome to vantle$' || fail "no welcome window"

# Second start: asks the first to toggle its popup and ends (one that kept running would meet the
# timeout); simultaneous starts are two-instances.sh's.
timeout 20 "$vantle" || fail "a second start failed"
wait_for 10 popup_shown || fail "a second start did not bring the popup up"
timeout 20 "$vantle" toggle || fail "vantle toggle failed"
wait_for 10 popup_hidden || fail "vantle toggle did not close the popup"

# Twelve picks in a row, the welcome window open throughout, each ended another way; a new
# desktop colour for each, so every copy is told from the one before. A cancelled pick must leave
# the clipboard alone: checked once the next loupe shows, when Vantle has done all it would.
ends=(click Return space Escape click right-click Return click Escape space click Return)
kept=
for i in "${!ends[@]}"; do
    colour=$(printf '#%02X%02X%02X' $((20 * i + 10)) $((200 - 15 * i)) $((90 + 7 * i)))
    xsetroot -solid "$colour"
    xdotool mousemove $((60 + 20 * i)) "$(scaled 700)" # clear of the welcome window
    press alt+shift+c
    wait_for 10 loupe_shown || fail "press $((i + 1)) of the pick shortcut opened no loupe"
    [[ -z $kept ]] || clipboard_is "$kept" || fail "cancelled pick $i changed the clipboard"
    echo "sentinel $i" | xclip -selection clipboard
    case ${ends[$i]} in
        click) xdotool click 1 ;;
        right-click) xdotool click 3 ;;
        *) press "${ends[$i]}" ;;
    esac
    wait_for 10 loupe_hidden || fail "pick $((i + 1)) (${ends[$i]}) did not end"
    kept=
    case ${ends[$i]} in
        Escape | right-click) kept="sentinel $i" ;;
        *) wait_for 10 clipboard_is "$colour" \
            || fail "pick $((i + 1)) (${ends[$i]}) copied \"$(xclip -o -selection clipboard)\", not $colour" ;;
    esac
done

# The open popup holds the keyboard, yet both shortcuts work (the popup makes way for a pick).
# Another client holds the keyboard when a grab of ours finds it AlreadyGrabbed (1).
keyboard_taken() {
    python3 -c 'import ctypes as c; x = c.CDLL("libX11.so.6"); x.XOpenDisplay.restype = c.c_void_p
d = c.c_void_p(x.XOpenDisplay(None)); x.XDefaultRootWindow.restype = c.c_ulong
status = x.XGrabKeyboard(d, c.c_ulong(x.XDefaultRootWindow(d)), 0, 1, 1, 0); x.XUngrabKeyboard(d, 0)
x.XCloseDisplay(d); exit(status != 1)'
}
for key in alt+shift+x alt+shift+c; do
    press alt+shift+x
    wait_for 10 popup_shown || fail "Alt+Shift+X did not open the popup"
    wait_for 10 keyboard_taken || fail "the open popup did not take the keyboard"
    press $key
    wait_for 10 popup_hidden || fail "$key left the open popup up"
done
wait_for 10 loupe_shown || fail "Alt+Shift+C did nothing while the popup was open"
press Escape
wait_for 10 loupe_hidden || fail "Escape did not end the pick"

# The popup's own Pick Color button: the popup goes before the loupe reads the screen, so a
# click where the popup was picks the desktop, not the popup.
xsetroot -solid '#2E8B57'
press alt+shift+x
wait_for 10 popup_shown || fail "the popup did not open"
read -r px py pw ph < <(popup_geometry)
xdotool mousemove $((px + pw / 2)) $((py + $(scaled 62))) click 1
wait_for 10 loupe_shown || fail "the popup's Pick Color button opened no loupe"
xdotool mousemove $((px + pw / 2)) $((py + ph / 2)) click 1
wait_for 10 clipboard_is '#2E8B57' || fail "a pick where the popup was copied \"$(xclip -o -selection clipboard)\""

# `vantle pick` from another process; the loupe takes the click on the desktop.
xsetroot -solid '#FF6B36'
timeout 20 "$vantle" pick || fail "vantle pick failed"
wait_for 20 loupe_shown || fail "no loupe came up"
xdotool mousemove 100 700 click 1
wait_for 10 clipboard_is '#FF6B36' || fail "clipboard holds \"$(xclip -o -selection clipboard)\", not #FF6B36"
[[ $("$vantle" export) == *"#FF6B36"* ]] || fail "the history does not hold the colour: $("$vantle" export)"
wait_for 10 icon_shows FF6B36 || fail "the tray icon ($(tray_icon)) shows no dot in the picked colour"

read -r icon_w icon_h icon_x icon_y < <(geometry "$(tray_icon)")
xdotool mousemove $((icon_x + icon_w / 2)) $((icon_y + icon_h / 2)) click 1
wait_for 10 popup_shown || fail "a click on the tray icon did not open the popup"
shot popup
# Below the icon of the top panel, whole on the screen (once placed: it is placed again when its
# content has its size).
screen_h=$(xdpyinfo | awk '/dimensions:/ {split($2, d, "x"); print d[2]}')
popup_below_icon() {
    read -r _ popup_y _ popup_h < <(popup_geometry) && ((popup_y >= icon_y + icon_h && popup_y + popup_h <= screen_h))
}
wait_for 5 popup_below_icon \
    || fail "the popup ($(popup_geometry)) is not between the tray icon (y $icon_y) and the screen's bottom"
xdotool mousemove $((icon_x + icon_w / 2)) $((icon_y + icon_h / 2)) click 1
wait_for 10 popup_hidden || fail "a second click on the tray icon did not close the popup"

# Quitting from the tray's menu ends Vantle and frees its name and shortcuts.
shown=$(windows | wc -l)
xdotool mousemove $((icon_x + icon_w / 2)) $((icon_y + icon_h / 2)) click 3
wait_for 10 eval '(($(windows | wc -l) > shown))' || fail "a right click on the tray icon showed no menu"
xdotool key Up Return
wait_for 10 sh -c "! kill -0 $pid" || fail "Vantle did not quit from its menu"
wait "$pid" || fail "Vantle ended with status $?"
if timeout 20 "$vantle" toggle 2>/dev/null; then fail "vantle toggle still finds a Vantle"; fi

# At login the panel may come up after Vantle gave up waiting for it: the icon docks when it
# does, and the no-tray window goes. At scale 2 on this small screen the popup opens below the
# panel, and the settings window fits the screen with its title bar on it.
kill "$VANTLE_TRAY_PID"
wait_for 10 eval '! tray_icon' || fail "the test's tray did not go"
export QT_SCALE_FACTOR=2
"$vantle" 2>>"$home/vantle.log" &
pid=$! && pids+=("$pid")
wait_for 20 popup_shown || fail "without a tray Vantle showed no window of its own"
trayer --edge top --align right --widthtype request --height 24 --SetDockType true --SetPartialStrut true \
    >/dev/null 2>&1 &
pids+=($!)
wait_for 10 tray_icon || fail "the icon did not dock in a tray that came after Vantle"
wait_for 10 popup_hidden || fail "the no-tray window stayed after the icon docked"
xdotool key --delay 80 alt+shift+x
read -r icon_w icon_h icon_x icon_y < <(geometry "$(tray_icon)")
wait_for 10 popup_below_icon || fail "at scale 2 the popup ($(popup_geometry)) is not below the tray icon (y $icon_y)"
read -r popup_x popup_y _ popup_h < <(popup_geometry)
xdotool mousemove $((popup_x + $(scaled 20))) $((popup_y + popup_h - $(scaled 18))) click 1
wait_for 10 xdotool search --onlyvisible --name '^Vantle Settings$' || fail "the popup's gear opened no settings"
settings_fit() {
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --onlyvisible --name '^Vantle Settings$' | head -n1)")"
    ((Y >= 20 && Y + HEIGHT <= screen_h))
}
wait_for 5 settings_fit || fail "the settings window runs off the screen"
shot small-screen
echo "PASS"
