# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the scripts that drive Vantle ($VANTLE_BIN) on an X desktop, in the throwaway home of
# test-home.sh; $pid is the running Vantle, $shots an optional folder for pictures.
source "$(dirname "${BASH_SOURCE[0]}")/test-home.sh"
need_tools xdotool xclip xwininfo
vantle=${VANTLE_BIN:?}
# geometry ID: "width height x y" of an X window.
geometry() {
    xwininfo -id "$1" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4}
        /Width:/ {w=$2} /Height:/ {h=$2} END {print w, h, x, y}'
}
# windows: "id width height x y" for each mapped window of Vantle's.
windows() {
    local id
    for id in $(xdotool search --onlyvisible --pid "$pid" 2>/dev/null); do echo "$id $(geometry "$id")"; done
}
clipboard_is() { [[ $(xclip -o -selection clipboard 2>/dev/null) == "$1" ]]; }
# shot NAME: the screen into $shots/NAME.png when the script was given a folder for pictures.
shot() { [[ -n ${shots:-} ]] && mkdir -p "$shots" && import -window root "$shots/$1.png" 2>/dev/null || true; }
# scaled N: N logical pixels in device pixels at QT_SCALE_FACTOR (the scripts run at any scale).
scaled() { awk -v n="$1" -v s="${QT_SCALE_FACTOR:-1}" 'BEGIN {print int(n * s + 0.5)}'; }
# popup_geometry: "x y width height" of the popup (Vantle's window 320 wide), or fails.
popup_geometry() {
    windows | awk -v w="$(scaled 320)" '$2 == w {print $4, $5, $2, $3; found=1; exit} END {exit !found}'
}
popup_shown() { popup_geometry >/dev/null; }
popup_hidden() { ! popup_shown; }
# The loupe: Vantle's small window beside the pointer.
loupe_shown() { xdotool search --onlyvisible --classname '^vantle-loupe$' >/dev/null 2>&1; }
loupe_hidden() { ! loupe_shown; }
