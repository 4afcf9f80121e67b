#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The shortcuts at a person's pace, inside the private X desktop of tests/desktop/x11-session.sh:
# keys held 80 ms as a hand holds them, many picks in a row ended in every way, with the welcome
# window open all along, both shortcuts while the popup holds the keyboard, and a pick from the
# popup's own button, which must not see the popup.
#   VANTLE_BIN=... x11-session.sh shortcut-presses.sh [SHOT_DIR]
# At QT_SCALE_FACTOR=2 give the desktop room for the larger windows: x11-session.sh --size 2560x1600.
set -euo pipefail

shots=${1:-}
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/vantle-windows.sh"
need_tools xsetroot import
on_failure() { shot failure; }
press() { xdotool key --delay 80 "$1"; } # a person's press: each key held 80 ms

"$vantle" &
pid=$! && pids+=("$pid")
wait_for 20 xdotool search --onlyvisible --name '^Welcome to vantle$' || fail "no welcome window"

# Twelve picks in a row, the welcome window open throughout, each ended another way; a new
# desktop colour for each, so every copy is told from the one before.
ends=(click Return space Escape click right-click Return click Escape space click Return)
for i in "${!ends[@]}"; do
    colour=$(printf '#%02X%02X%02X' $((20 * i + 10)) $((200 - 15 * i)) $((90 + 7 * i)))
    xsetroot -solid "$colour"
    echo "sentinel $i" | xclip -selection clipboard
    xdotool mousemove $((60 + 20 * i)) "$(scaled 700)" # clear of the welcome window
    press alt+shift+c
    wait_for 10 loupe_shown || fail "press $((i + 1)) of the pick shortcut opened no loupe"
    case ${ends[$i]} in
        click) xdotool click 1 ;;
        right-click) xdotool click 3 ;;
        *) press "${ends[$i]}" ;;
    esac
    wait_for 10 loupe_hidden || fail "pick $((i + 1)) (${ends[$i]}) did not end"
    case ${ends[$i]} in
        Escape | right-click)
            sleep 0.3
            clipboard_is "sentinel $i" || fail "cancelled pick $((i + 1)) changed the clipboard" ;;
        *) wait_for 10 clipboard_is "$colour" \
            || fail "pick $((i + 1)) (${ends[$i]}) copied \"$(xclip -o -selection clipboard)\", not $colour" ;;
    esac
done

# The popup takes the keyboard while it is open: its shortcut still closes it, and the pick
# shortcut still picks (the popup makes way). `vantle toggle` is tray-end-to-end.sh's.
for key in alt+shift+x alt+shift+c; do
    press alt+shift+x
    wait_for 10 popup_shown || fail "Alt+Shift+X did not open the popup"
    sleep 0.3
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
sleep 0.5
shot popup-before-pick
# The button spans the popup's width just below its header.
xdotool mousemove $((px + pw / 2)) $((py + $(scaled 62))) click 1
wait_for 10 loupe_shown || fail "the popup's Pick Color button opened no loupe"
xdotool mousemove $((px + pw / 2)) $((py + ph / 2))
sleep 0.3
shot loupe-where-the-popup-was
xdotool click 1
wait_for 10 clipboard_is '#2E8B57' || fail "a pick where the popup was copied \"$(xclip -o -selection clipboard)\""
echo "PASS"
