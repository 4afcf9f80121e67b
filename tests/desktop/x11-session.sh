#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# x11-session.sh [--size WxH] [--no-tray] COMMAND [ARGS...]: runs COMMAND in a private X11
# desktop (Xvfb, openbox, trayer as XEmbed tray; VANTLE_TRAY_PID) on a private session bus.
set -euo pipefail

command -v Xvfb >/dev/null || { echo "SKIP: Xvfb is not installed (apt-get install xvfb)" >&2; exit 77; }
if [[ -z "${VANTLE_IN_DBUS:-}" ]]; then # again on a private session bus that ends with us
    # A plain X11 desktop: the portal frontend that reading the appearance activates finds no
    # backend, rather than starting GNOME's or KDE's (installed for their own tests) to fail here.
    VANTLE_IN_DBUS=1 XDG_DESKTOP_PORTAL_DIR=/nonexistent/vantle-x11-test exec dbus-run-session -- "$0" "$@"
fi
size=1280x800x24
tray=1
while [[ $# -gt 0 ]]; do
    case "$1" in
        --size) size="$2x24"; shift 2 ;;
        --no-tray) tray=0; shift ;;
        *) break ;;
    esac
done

source "$(dirname "${BASH_SOURCE[0]}")/wait-for.sh"
pids=()
trap 'end_started; rm -rf "${fifo_dir:-/nonexistent}"' EXIT

# Let Xvfb pick a free display and tell us its number, so parallel tests never collide.
fifo_dir=$(mktemp -d)
mkfifo "$fifo_dir/display"
# -noreset: the server resets when its last client leaves (the readiness probe below), and a
# client connecting during that reset fails to open the display.
Xvfb -displayfd 3 -screen 0 "$size" -nolisten tcp -noreset 3>"$fifo_dir/display" >/dev/null 2>&1 &
pids+=($!)
read -r -t 20 display_number <"$fifo_dir/display" || { echo "Xvfb did not start" >&2; exit 1; }
export DISPLAY=":$display_number"
export NO_AT_BRIDGE=1
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY XDG_SESSION_TYPE

wait_for 10 xdpyinfo || { echo "X server $DISPLAY not answering" >&2; exit 1; }

# start_until READY COMMAND...: starts COMMAND in the background until READY succeeds. Under
# load a client may fail to connect to a server that has just started ("cannot open display")
# and die; a desktop without its window manager or tray would fail the test for nothing.
start_until() {
    local ready=$1 attempt
    shift
    for attempt in 1 2 3; do
        "$@" >>"$fifo_dir/$1.log" 2>&1 &
        pids+=($!)
        # Ready, or dead and to be started again.
        wait_for 10 eval "! kill -0 $! 2>/dev/null || $ready" && eval "$ready" >/dev/null 2>&1 && return 0
    done
    echo "$1 did not start on $DISPLAY: $(tail -n 5 "$fifo_dir/$1.log")" >&2
    exit 1
}
if command -v openbox >/dev/null; then
    # "window id" and not just "window": on a new server xprop answers "no such atom on any window".
    start_until "xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'" openbox --sm-disable
fi
if [[ $tray == 1 ]] && command -v trayer >/dev/null; then
    # Qt docks an icon whenever the tray appears, so trayer's window existing is enough here
    # (an empty panel of width "request" may stay unmapped).
    start_until "xdotool search --class trayer" trayer --edge top --align right --widthtype request \
        --height 24 --SetDockType true --transparent false --tint 0x202020
    export VANTLE_TRAY_PID=${pids[-1]}
fi

"$@"
