#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The X11 sampler on a real X server, driven as a person would: `vantle pick --print` over a
# window of known colours, real clicks and keys through xdotool.
set -euo pipefail
helper="$1"
vantle="${VANTLE_BIN:?}"
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/test-home.sh"

# Left half #3A7BD5, right half #D5603A: x 100..299 and 300..499, y 100..399.
"$helper" target 100 100 400 300 '#3A7BD5' '#D5603A' "$home/presses" >"$home/target.out" & pids+=($!)
wait_for 10 grep -q ready "$home/target.out" || fail "the target window did not appear"

# start_pick FORMAT: starts the sampler and waits until it holds the pointer grab.
start_pick() {
    "$vantle" pick --print --format "$1" >"$home/out" 2>"$home/err" &
    pick_pid=$!
    "$helper" wait-grab 20 || fail "the sampler never grabbed the pointer: $(cat "$home/err")"
}
finish_pick() { # finish_pick EXPECTED_STATUS
    local status=0
    wait "$pick_pid" || status=$?
    [[ $status == "$1" ]] || fail "exit status $status, expected $1; stderr: $(cat "$home/err")"
}

# Picks one after another: where the pointer goes first ("-": where the last pick left it), the
# format, what the user does (":" between words), the exit status and the text printed.
#   - a click picks the exact pixel under it (and does not reach the window beneath);
#   - Escape and a right click cancel: status 1, nothing printed;
#   - arrow keys move one device pixel (from the last blue column, Right picks orange), and the
#     real pointer follows, so the next pick starts there; Shift+arrow moves ten.
while read -r at format action status expected; do
    [[ $at == - ]] || xdotool mousemove "${at%,*}" "${at#*,}"
    start_pick "$format"
    xdotool ${action//:/ }
    finish_pick "$status"
    [[ $(cat "$home/out") == "$expected" ]] || fail "$at $action: '$(cat "$home/out")', not '$expected'"
done <<'TABLE'
150,200 hex click:1 0 #3A7BD5
- hex key:Escape 1
- hex click:3 1
299,200 rgb key:Right:Return 0 rgb(213, 96, 58)
- hexLower key:Left:space 0 #3a7bd5
290,200 hex key:shift+Right:Return 0 #D5603A
TABLE
[[ ! -s "$home/presses" ]] || fail "clicks reached the window beneath: $(cat "$home/presses")"

# The loupe magnifies the frozen desktop pixel for pixel. The pattern is painted the way most X
# clients store pixels (their undefined top byte zero); every cell must show its own pixel, not
# a blend with the desktop beneath the loupe. Checked where the pick starts, after the pointer
# moves (the old and new place are painted again), and at the corner, where the loupe flips and
# the cells beyond the screen are black.
"$helper" pattern || fail "could not paint the pattern on the root window"
loupe_shows() { import -window root "$home/shot.png" && "$helper" check-loupe "$home/shot.png" "$@" >"$home/check"; }
xdotool mousemove 700 500
start_pick hex
for at in "700 500" "905 333" "1277 797"; do
    xdotool mousemove $at
    wait_for 10 loupe_shows $at || fail "the loupe at $at is not the magnified desktop: $(cat "$home/check")"
done
xdotool key Escape
finish_pick 1

# At every scale factor a click picks the very device pixel under it (odd ones too, which a
# logical position rounds away), also when the pointer flicks there and clicks in one go, the
# loupe still showing where it started; and a nudge moves exactly one device pixel.
picked() { # picked X Y: the pick printed the pattern's pixel at X,Y
    finish_pick 0
    [[ $(cat "$home/out") == "$("$helper" pattern-hex "$1" "$2")" ]] || fail "at scale $scale $1,$2: $(cat "$home/out")"
}
for scale in 1 1.25 1.5 2; do
    for at in "501 301" "777 333" "1001 499"; do
        read -r x y <<<"$at"
        xdotool mousemove $((x - 168)) $((y + 216)) # at scale 2 the loupe's lens is then over x, y
        QT_SCALE_FACTOR=$scale start_pick hex
        xdotool mousemove "$x" "$y" click 1
        picked "$x" "$y"
        QT_SCALE_FACTOR=$scale start_pick hex
        xdotool key Right Down Return
        picked $((x + 1)) $((y + 1))
    done
done

# Colour-managed picks by shortcut, popup button, `vantle pick` and `vantle pick --print`, on two
# monitors (RandR halves). Each row puts colord's profiles on the root window as a colour manager
# does ("-": none, "bad": cut short, Crayons: a named-colour profile) while the tray Vantle runs,
# then picks: transicc's sRGB colour for the pixel under its monitor's profile, or the pixel.
need_tools transicc xrandr xclip python3
icc=/usr/share/color/icc/colord
[[ -r $icc/SwappedRedAndGreen.icc ]] || { echo "SKIP: colord-data is not installed" >&2; exit 77; }
head -c 600 "$icc/AdobeRGB1998.icc" >"$home/bad.icc" # a profile cut short
xrandr --setmonitor Left 640/169x800/254+0+0 screen >/dev/null
xrandr --setmonitor Right 640/169x800/254+640+0 none >/dev/null
# #8040C8 on the left monitor (x 440..639), red on the right one (x 640..839).
"$helper" target 440 500 400 200 '#8040C8' '#FF0000' "$home/presses" >"$home/target2.out" & pids+=($!)
wait_for 10 grep -q ready "$home/target2.out" || fail "the second target window did not appear"
printf '[General]\nonboardingShown=true\n' >"$XDG_CONFIG_HOME/Vantle/Vantle.conf"
QT_LOGGING_RULES="vantle.colourprofiles.info=true" "$vantle" 2>"$home/tray.log" & pid=$! pids+=($!)
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/vantle-windows.sh"
# Its sampler has read the monitors' profiles (none yet): from now on it must follow changes.
wait_for 20 grep -q 'monitor 2 (Right): no profile' "$home/tray.log" \
    || fail "no profiles read: $(cat "$home/tray.log")"
profile_file() { [[ -r $home/$1.icc ]] && echo "$home/$1.icc" || echo "$icc/$1.icc"; }
reference() { # reference PROFILE R G B: the sRGB colour as #RRGGBB, by transicc
    printf '%s %s %s\n' "$2" "$3" "$4" | transicc -t1 -i "$(profile_file "$1")" -o '*sRGB' -n 2>/dev/null \
        | awk 'function byte(v) { return int((v < 0 ? 0 : v > 255 ? 255 : v) + 0.5) }
               NF == 3 { printf "#%02X%02X%02X", byte($1), byte($2), byte($3) }'
}
put_profile() { [[ $2 == - ]] && "$helper" set-profile "$1" || "$helper" set-profile "$1" "$(profile_file "$2")"; }
# left monitor's profile | right monitor's | route | x | the pixel there
while read -r left right route x pixel; do
    put_profile 0 "$left" && put_profile 1 "$right"
    profile=$left && ((x >= 640)) && profile=$right
    IFS=, read -r r g b <<<"$pixel"
    expected=$(printf '#%02X%02X%02X' "$r" "$g" "$b")
    [[ $profile == - || $profile == bad || $profile == Crayons ]] \
        || expected=$(reference "$profile" "$r" "$g" "$b")
    echo none | xclip -selection clipboard
    xdotool mousemove "$x" 600
    case $route in
        print) start_pick hex ;;
        pick) "$vantle" pick && "$helper" wait-grab 20 || fail "vantle pick did not start a pick" ;;
        shortcut)
            xdotool key --clearmodifiers alt+shift+c && "$helper" wait-grab 20 || fail "no shortcut pick" ;;
        button) # the popup's Pick Color button, which has the focus when the popup opens
            "$vantle" toggle && wait_for 10 popup_shown && xdotool key space && "$helper" wait-grab 20 \
                || fail "no pick from the popup's button" ;;
    esac
    xdotool click 1
    if [[ $route == print ]]; then
        finish_pick 0
        copied=$(cat "$home/out")
    else
        wait_for 10 clipboard_is "$expected" || true
        copied=$(xclip -o -selection clipboard)
    fi
    [[ $copied == "$expected" ]] || fail "$left | $right, $route at x $x: copied $copied, not $expected;" \
        "$(grep -h colourprofiles "$home/err" "$home/tray.log" | tail -n 2)"
done <<'TABLE'
AdobeRGB1998 - print 500 128,64,200
AdobeRGB1998 - shortcut 500 128,64,200
SwappedRedAndGreen - pick 700 255,0,0
- SwappedRedAndGreen pick 700 255,0,0
bad SwappedRedAndGreen pick 500 128,64,200
Crayons bad print 700 255,0,0
ProPhotoRGB Crayons pick 700 255,0,0
ProPhotoRGB - button 500 128,64,200
- AdobeRGB1998 pick 500 128,64,200
- AdobeRGB1998 pick 700 255,0,0
TABLE
# The last pick, Adobe RGB's red, is redder than sRGB can say: the record keeps it unclamped.
red=$(python3 -c 'import json, sys; print(json.load(open(sys.argv[1]))[0]["red"])' \
    "$XDG_CONFIG_HOME/Vantle/colorHistory.json")
python3 -c "import sys; sys.exit(not 1.14 < $red < 1.18)" || fail "the stored red is $red, not about 1.16"
echo "sampler desktop test passed"
