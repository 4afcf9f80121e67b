#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# sway-session.sh COMMAND [ARGS...]: runs COMMAND in a private headless sway (no GPU, input
# devices or XWayland; as `nobody` when root, since sway refuses root) on a private session bus.
set -euo pipefail

skip() { echo "SKIP: $*" >&2; exit 77; }

source "$(dirname "${BASH_SOURCE[0]}")/wait-for.sh"
source "$(dirname "${BASH_SOURCE[0]}")/private-session.sh"

if [[ -z "${VANTLE_IN_SWAY_SESSION:-}" ]]; then
    command -v sway >/dev/null || skip "sway is not installed (apt-get install sway)"
    command -v wl-paste >/dev/null || skip "wl-clipboard is not installed (apt-get install wl-clipboard)"
    private_session VANTLE_IN_SWAY_SESSION "$0" "$@"
fi

pids=()
trap end_started EXIT
cat >"$XDG_RUNTIME_DIR/sway.conf" <<'EOF'
xwayland disable
output HEADLESS-1 resolution 1280x800 bg #FF6B36 solid_color
EOF
unset DISPLAY WAYLAND_DISPLAY SWAYSOCK
WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
    sway -c "$XDG_RUNTIME_DIR/sway.conf" >"$XDG_RUNTIME_DIR/sway.log" 2>&1 &
pids+=($!)

wayland_socket() { compgen -G "$XDG_RUNTIME_DIR/wayland-[0-9]" | head -n 1; }
ipc_socket() { compgen -G "$XDG_RUNTIME_DIR/sway-ipc.*.sock" | head -n 1; }
sway_ready() { [[ -n "$(wayland_socket)" && -n "$(ipc_socket)" ]] && swaymsg -s "$(ipc_socket)" -t get_outputs; }
if ! wait_for 20 sway_ready; then
    tail -n 20 "$XDG_RUNTIME_DIR/sway.log" >&2 || true
    skip "headless sway could not start here (log above)"
fi
WAYLAND_DISPLAY=$(basename "$(wayland_socket)")
SWAYSOCK=$(ipc_socket)
export WAYLAND_DISPLAY SWAYSOCK
export QT_QPA_PLATFORM=wayland XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=sway
export NO_AT_BRIDGE=1

"$@"
