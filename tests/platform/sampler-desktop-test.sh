#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The X11 sampler on a real X server, driven as a person would: `vantle pick --print` over a
# window of known colours, real clicks and keys through xdotool.
set -euo pipefail
helper="$1"
vantle="${VANTLE_BIN:?}"
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/test-home.sh"
work=$home

# Left half #3A7BD5, right half #D5603A: x 100..299 and 300..499, y 100..399.
"$helper" target 100 100 400 300 '#3A7BD5' '#D5603A' "$work/presses" >"$work/target.out" &
pids+=($!)
wait_for 10 grep -q ready "$work/target.out" || fail "the target window did not appear"

# start_pick FORMAT: starts the sampler and waits until it holds the pointer grab.
start_pick() {
    "$vantle" pick --print --format "$1" >"$work/out" 2>"$work/err" &
    pick_pid=$!
    "$helper" wait-grab 20 || fail "the sampler never grabbed the pointer: $(cat "$work/err")"
}
finish_pick() { # finish_pick EXPECTED_STATUS
    local status=0
    wait "$pick_pid" || status=$?
    [[ $status == "$1" ]] || fail "exit status $status, expected $1; stderr: $(cat "$work/err")"
}

# A click picks the exact pixel under it and does not reach the window beneath.
xdotool mousemove 150 200
start_pick hex
xdotool click 1
finish_pick 0
[[ "$(cat "$work/out")" == "#3A7BD5" ]] || fail "click picked '$(cat "$work/out")', expected #3A7BD5"

# Escape cancels: status 1, nothing printed.
start_pick hex
xdotool key Escape
finish_pick 1
[[ ! -s "$work/out" ]] || fail "a cancelled pick printed '$(cat "$work/out")'"

# A right click cancels too.
start_pick hex
xdotool click 3
finish_pick 1
[[ ! -s "$work/out" ]] || fail "a right click printed '$(cat "$work/out")'"

# Arrow keys move one device pixel: from the last blue column, Right then Return picks orange;
# the real pointer moved with it, so a later pick starts there.
xdotool mousemove 299 200
start_pick rgb
xdotool key Right Return
finish_pick 0
[[ "$(cat "$work/out")" == "rgb(213, 96, 58)" ]] || fail "after Right, picked '$(cat "$work/out")'"
start_pick hexLower
xdotool key Left space
finish_pick 0
[[ "$(cat "$work/out")" == "#3a7bd5" ]] || fail "the pointer did not follow the nudge: '$(cat "$work/out")'"

# Shift+arrow moves ten pixels.
xdotool mousemove 290 200
start_pick hex
xdotool key shift+Right Return
finish_pick 0
[[ "$(cat "$work/out")" == "#D5603A" ]] || fail "Shift+Right did not move ten pixels: '$(cat "$work/out")'"

[[ ! -s "$work/presses" ]] || fail "clicks reached the window beneath: $(cat "$work/presses")"

# The loupe magnifies the frozen desktop pixel for pixel. The pattern is painted the way most X
# clients store pixels (their undefined top byte zero); every cell must show its own pixel, not
# a blend with the desktop beneath the loupe. Checked where the pick starts, after the pointer
# moves (the old and new place are painted again), and at the corner, where the loupe flips and
# the cells beyond the screen are black.
"$helper" pattern || fail "could not paint the pattern on the root window"
# expect_loupe HX HY: waits until a screenshot shows the right loupe for that hotspot.
expect_loupe() {
    for _ in $(seq 40); do
        import -window root "$work/shot.png" 2>/dev/null || true
        "$helper" check-loupe "$work/shot.png" "$1" "$2" >"$work/check" 2>&1 && return 0
        sleep 0.1
    done
    fail "the loupe at $1,$2 does not show the magnified desktop: $(cat "$work/check")"
}
xdotool mousemove 700 500
start_pick hex
expect_loupe 700 500
xdotool mousemove 905 333
expect_loupe 905 333
xdotool mousemove 1277 797
expect_loupe 1277 797
xdotool key Escape
finish_pick 1

# At every scale factor a click picks the very device pixel under it (odd ones too, which a
# logical position rounds away), also when the pointer flicks there and clicks in one go, the
# loupe still showing where it started; and a nudge moves exactly one device pixel.
for scale in 1 1.25 1.5 2; do
    for at in "501 301" "777 333" "1001 499"; do
        read -r x y <<<"$at"
        xdotool mousemove $((x - 168)) $((y + 216)) # at scale 2 the loupe's lens is then over x, y
        QT_SCALE_FACTOR=$scale start_pick hex
        xdotool mousemove "$x" "$y" click 1
        finish_pick 0
        expected=$("$helper" pattern-hex "$x" "$y")
        [[ "$(cat "$work/out")" == "$expected" ]] \
            || fail "at scale $scale a click on $x,$y picked $(cat "$work/out"), expected $expected"
        QT_SCALE_FACTOR=$scale start_pick hex
        xdotool key Right Down Return
        finish_pick 0
        expected=$("$helper" pattern-hex $((x + 1)) $((y + 1)))
        [[ "$(cat "$work/out")" == "$expected" ]] \
            || fail "at scale $scale Right, Down from $x,$y picked $(cat "$work/out"), expected $expected"
    done
done

# Without --print the running Vantle is asked to pick; with none running, the command says so.
status=0
"$vantle" pick 2>"$work/err" >/dev/null || status=$?
[[ $status == 1 ]] && grep -q '^vantle pick: ' "$work/err" || fail "plain 'vantle pick' gave $status"
echo "sampler desktop test passed"
