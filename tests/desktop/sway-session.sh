#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a command inside a private Wayland desktop: sway in headless mode (no GPU, no input
# devices, no XWayland) on a private session bus. sway refuses to run as root, so as root the
# whole session runs as the unprivileged user `nobody` in a private XDG_RUNTIME_DIR; files it
# cannot read (the command, file arguments, VANTLE_BIN) are copied there first.
#
#   sway-session.sh COMMAND [ARGS...]
#
# Exports WAYLAND_DISPLAY, SWAYSOCK, XDG_RUNTIME_DIR, DBUS_SESSION_BUS_ADDRESS,
# QT_QPA_PLATFORM=wayland, XDG_SESSION_TYPE=wayland and VANTLE_TEST_SESSION=1 to COMMAND.
# Exits 77 (CTest's "skipped") when sway, wl-clipboard or (as root) runuser are missing, or
# when sway cannot start on this machine.
set -euo pipefail

skip() { echo "SKIP: $*" >&2; exit 77; }

source "$(dirname "${BASH_SOURCE[0]}")/wait-for.sh"

if [[ -z "${VANTLE_IN_SWAY_SESSION:-}" ]]; then
    command -v sway >/dev/null || skip "sway is not installed (apt-get install sway)"
    command -v wl-paste >/dev/null || skip "wl-clipboard is not installed (apt-get install wl-clipboard)"
    command -v dbus-run-session >/dev/null || skip "dbus-run-session is not installed (apt-get install dbus)"
    session_dir=$(mktemp -d "${TMPDIR:-/tmp}/vantle-sway.XXXXXX")
    trap 'remove_tree "$session_dir"' EXIT
    run_as=()
    if [[ $(id -u) == 0 ]]; then
        command -v runuser >/dev/null || skip "sway refuses to run as root and runuser is missing"
        id nobody >/dev/null 2>&1 || skip "sway refuses to run as root and there is no user 'nobody'"
        run_as=(runuser -u nobody --)
        chown nobody "$session_dir"
    fi
    chmod 0700 "$session_dir"
    # What the session user cannot reach (a build tree under /root) travels with it.
    reachable() { "${run_as[@]}" test -r "$1"; }
    bring() { # bring FILE: prints a path the session user can read
        if [[ -f "$1" && ${#run_as[@]} -gt 0 ]] && ! reachable "$1"; then
            mkdir -p "$session_dir/bin"
            cp -p "$1" "$session_dir/bin/"
            chown -R nobody "$session_dir/bin"
            echo "$session_dir/bin/$(basename "$1")"
        else
            echo "$1"
        fi
    }
    script=$(bring "$0")
    args=()
    for arg in "$@"; do args+=("$(bring "$arg")"); done
    [[ -n "${VANTLE_BIN:-}" ]] && VANTLE_BIN=$(bring "$VANTLE_BIN") && export VANTLE_BIN
    status=0
    "${run_as[@]}" env VANTLE_IN_SWAY_SESSION=1 XDG_RUNTIME_DIR="$session_dir" HOME="$session_dir" \
        dbus-run-session -- bash "$script" "${args[@]}" || status=$?
    exit "$status"
fi

pids=()
cleanup() {
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[$i]}" 2>/dev/null || true; done
    wait 2>/dev/null || true
}
trap cleanup EXIT

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
export NO_AT_BRIDGE=1 VANTLE_TEST_SESSION=1

"$@"
