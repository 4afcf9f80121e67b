#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Remakes the README's pictures of Vantle from the real program, on a private X desktop
# (tests/desktop/x11-session.sh: Xvfb, openbox, a tray), with a history made for the purpose:
#   docs/screenshots/popup.png    the popup with pinned and recent colours
#   docs/screenshots/loupe.png    the loupe over a picture
#   docs/screenshots/detail.png   one colour's detail screen with its formats and contrast
#   docs/screenshots/contrast.png the same screen scrolled to its comparison with the colour
#                                 picked before it, as text on it
#
#   scripts/screenshots.sh [BUILD_DIR]     (after `make build`; needs imagemagick, xdotool)
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
out=$here/docs/screenshots

if [[ -z "${VANTLE_IN_SESSION:-}" ]]; then
    export VANTLE_IN_SESSION=1
    exec "$here/tests/desktop/x11-session.sh" --size 1280x800 "$0" "$build"
fi

source "$here/tests/desktop/wait-for.sh"
home=$(mktemp -d)
pid=
cleanup() {
    [[ -n $pid ]] && kill "$pid" 2>/dev/null || true
    rm -rf "$home"
}
trap cleanup EXIT
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run
mkdir -p "$XDG_CONFIG_HOME/Vantle" "$XDG_RUNTIME_DIR" "$out" && chmod 700 "$XDG_RUNTIME_DIR"
printf '[General]\nonboardingShown=true\ncolorFormat=Hex\n' >"$XDG_CONFIG_HOME/Vantle/Vantle.conf"
# A palette and a few recent picks, newest first (timestamps in seconds since 2001).
colour() { # colour ID R G B NAME PINNED TIME
    local name=""
    [[ -n $5 ]] && name=",\"name\":\"$5\""
    printf '{"id":"%s","red":%s,"green":%s,"blue":%s,"alpha":1%s,"isPinned":%s,"timestamp":%s}' \
        "$1" "$2" "$3" "$4" "$name" "$6" "$7"
}
{
    printf '['
    colour 5C2B1E7A-0D43-4F5E-9A61-1B2C3D4E5F60 1 0.4196 0.2118 "Sunset" false 785001900; printf ','
    colour 6D3C2F8B-1E54-4A6F-8B72-2C3D4E5F6071 0.2275 0.4824 0.8353 "" false 785001800; printf ','
    colour 7E4D3A9C-2F65-4B70-9C83-3D4E5F607182 0.1804 0.5451 0.3412 "" false 785001700; printf ','
    colour 8F5E4BAD-3A76-4C81-AD94-4E5F60718293 0.9608 0.7725 0.2588 "" false 785001600; printf ','
    colour 9A6F5CBE-4B87-4D92-BEA5-5F60718293A4 0.1176 0.1255 0.1412 "Ink" true 785000500; printf ','
    colour AB7A6DCF-5C98-4EA3-CFB6-60718293A4B5 0.9882 0.9686 0.9373 "Paper" true 785000400; printf ','
    colour BC8B7EDA-6DA9-4FB4-DAC7-718293A4B5C6 0.9059 0.2980 0.2353 "Signal red" true 785000300
    printf ']'
} >"$XDG_CONFIG_HOME/Vantle/colorHistory.json"

# A picture to pick from: bands of every hue, 80 pixels wide, so the loupe shows an edge.
convert -size 1x16 gradient: -rotate 90 \( +clone -fill 'gray(75%)' -colorize 100 \) \
    \( +clone -fill 'gray(55%)' -colorize 100 \) -set colorspace HSL -combine -colorspace sRGB \
    -scale '1280x800!' "$home/picture.png"
display -window root "$home/picture.png" 2>/dev/null || true

"$build/bin/vantle" 2>/dev/null &
pid=$!
wait_for 20 sh -c "xdotool search --onlyvisible --pid $pid >/dev/null" || sleep 2
sleep 2

source "$here/tests/desktop/vantle-windows.sh"
# shot NAME X Y W H: the part of the screen that shows it, optimised when optipng is there.
shot() {
    import -window root -crop "$4x$5+$2+$3" +repage "$out/$1.png"
    command -v optipng >/dev/null && optipng -quiet -o5 "$out/$1.png" || true
}

# The loupe over the picture.
xdotool mousemove 558 330 # beside the edge of two bands
xdotool key --delay 80 alt+shift+c
wait_for 10 loupe_shown
sleep 0.5
shot loupe 420 230 360 330
xdotool key Escape
sleep 0.5

# The popup, under the tray icon.
xdotool key --delay 80 alt+shift+x
wait_for 10 popup_shown
sleep 0.7
read -r x y w h < <(popup_geometry)
shot popup $((x - 10)) $((y - 10)) $((w + 20)) $((h + 20))

# The detail screen of the first pinned colour ("Ink"): the third row below the button.
xdotool mousemove $((x + w / 2)) $((y + 142)) click 1
sleep 0.7
read -r x y w h < <(popup_geometry)
shot detail $((x - 10)) $((y - 10)) $((w + 20)) $((h + 20))

# Tab past the nine format lines to the comparison's menu, which scrolls into view.
xdotool key --delay 40 Tab Tab Tab Tab Tab Tab Tab Tab Tab
sleep 0.5
shot contrast $((x - 10)) $((y - 10)) $((w + 20)) $((h + 20))
ls -l "$out"
