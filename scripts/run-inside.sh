#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs inside the virtual desktop of run.sh: starts Vantle, takes a first screenshot and prints
# how to drive it from another terminal.
set -euo pipefail
"$VANTLE" >"$VANTLE_RUN_STATE/vantle.log" 2>&1 &
pid=$!
for _ in $(seq 100); do
    xdotool search --pid "$pid" >/dev/null 2>&1 && break
    sleep 0.1
done
sleep 1
import -window root "$VANTLE_RUN_STATE/screen.png" 2>/dev/null || true
cat <<EOF

Vantle runs on display $DISPLAY (process $pid). In another terminal:

    export DISPLAY=$DISPLAY DBUS_SESSION_BUS_ADDRESS=$DBUS_SESSION_BUS_ADDRESS
    xdotool key alt+shift+c        # start a pick (then: xdotool mousemove 400 300 click 1)
    $VANTLE pick                   # the same from the command line
    $VANTLE toggle                 # show or hide the popup
    xclip -o -selection clipboard  # what was copied
    import -window root shot.png   # a screenshot

A first screenshot is in $VANTLE_RUN_STATE/screen.png; settings in $XDG_CONFIG_HOME.
Press Ctrl+C to stop.
EOF
wait "$pid"
