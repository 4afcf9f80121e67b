#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# gnome-session.sh COMMAND [ARGS...]: runs COMMAND in a private GNOME 43 desktop on Wayland
# (headless gnome-shell with Xwayland, portal, AppIndicator tray, gsd-media-keys, pipewire) with
# DESKTOP_DRIVER, a person at the desktop (gnome-driver.py; verbs: tests/platform/desktop-checks.sh).
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/wait-for.sh"

if [[ -z "${VANTLE_IN_GNOME_SESSION:-}" ]]; then
    command -v gnome-shell >/dev/null || { echo "SKIP: gnome-shell is not installed" >&2; exit 77; }
    dir=$(mktemp -d "${TMPDIR:-/tmp}/vantle-gnome.XXXXXX")
    status=0
    env -u DISPLAY -u WAYLAND_DISPLAY -u XAUTHORITY VANTLE_IN_GNOME_SESSION=1 XDG_RUNTIME_DIR="$dir" \
        HOME="$dir/home" XDG_CONFIG_HOME="$dir/home/.config" XDG_DATA_HOME="$dir/home/.local/share" \
        XDG_CACHE_HOME="$dir/home/.cache" dbus-run-session -- "$0" "$@" || status=$?
    rm -rf "$dir" 2>/dev/null || true # a portal may still be writing there as it ends
    exit "$status"
fi

pids=()
bus() { dbus-send --session --print-reply=literal --dest=org.freedesktop.DBus / "org.freedesktop.DBus.$1" "${@:2}"; }
cleanup() { # what we started, then what the bus started for us (portals, dconf), by PID
    set +e
    for name in $(bus ListNames | tr ' ' '\n' | grep '^:'); do
        pids+=("$(bus GetConnectionUnixProcessID "string:$name" 2>/dev/null | awk '{print $2}')")
    done
    for pid in "${pids[@]}"; do [[ $pid != "$$" ]] && kill "$pid"; done 2>/dev/null
    wait 2>/dev/null
}
trap cleanup EXIT
fail() { echo "gnome-session.sh: $*" >&2; tail -n 30 "$XDG_RUNTIME_DIR/shell.log" >&2; exit 1; }
mkdir -p "$HOME" "$XDG_RUNTIME_DIR/portals"
export NO_AT_BRIDGE=1 GSETTINGS_BACKEND=dconf XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME
# gnome-shell dies when /run/systemd/seats exists and no system bus answers: a bus of our own.
export DBUS_SYSTEM_BUS_ADDRESS="unix:path=$XDG_RUNTIME_DIR/system_bus"
dbus-daemon --session --nofork --address="$DBUS_SYSTEM_BUS_ADDRESS" >/dev/null 2>&1 &
pids+=($!)

# The desktop as the checks need it: the tray extension on, no hot corner, no banners; only
# GNOME's own portals, even where another desktop's are installed.
while read -r schema key value; do gsettings set "$schema" "$key" "$value"; done <<'EOF'
org.gnome.shell enabled-extensions ['ubuntu-appindicators@ubuntu.com']
org.gnome.shell welcome-dialog-last-shown-version '999'
org.gnome.desktop.interface enable-hot-corners false
org.gnome.desktop.notifications show-banners false
EOF
cp /usr/share/xdg-desktop-portal/portals/{gnome,gtk,gnome-shell}.portal "$XDG_RUNTIME_DIR/portals/" || true
export XDG_DESKTOP_PORTAL_DIR=$XDG_RUNTIME_DIR/portals

# Mutter starts Xwayland only where /tmp/.X11-unix is world-writable (1777, as systemd makes it;
# an X server started under a strict umask may have made it 1755).
mkdir -p /tmp/.X11-unix && [[ $(stat -c %a /tmp/.X11-unix) == 1777 ]] || chmod 1777 /tmp/.X11-unix || true
pipewire >"$XDG_RUNTIME_DIR/pipewire.log" 2>&1 &
pids+=($!)
gnome-shell --headless --wayland --virtual-monitor 1280x800 --unsafe-mode >"$XDG_RUNTIME_DIR/shell.log" 2>&1 &
pids+=($!)
x11_display() { sed -n 's/.*Using public X11 display \(:[0-9]*\).*/\1/p' "$XDG_RUNTIME_DIR/shell.log" | head -n 1; }
shell_ready() { [[ -n $(x11_display) && -S $XDG_RUNTIME_DIR/wayland-0 ]]; }
wait_for 60 shell_ready || fail "gnome-shell did not start"
export WAYLAND_DISPLAY=wayland-0 DISPLAY=$(x11_display)
export XAUTHORITY=$(compgen -G "$XDG_RUNTIME_DIR/.mutter-Xwaylandauth.*" | head -n 1)
dbus-update-activation-environment WAYLAND_DISPLAY DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP \
    XDG_SESSION_TYPE XDG_DESKTOP_PORTAL_DIR DBUS_SYSTEM_BUS_ADDRESS NO_AT_BRIDGE HOME XDG_CONFIG_HOME
/usr/libexec/gsd-media-keys >"$XDG_RUNTIME_DIR/gsd.log" 2>&1 &
pids+=($!)

owned() { bus NameHasOwner "string:$1" | grep -q true; }
for name in org.gnome.Shell org.gnome.Mutter.RemoteDesktop org.gnome.Mutter.ScreenCast; do
    wait_for 60 owned "$name" || fail "$name never came on the bus"
done
export DESKTOP_DRIVER=$here/gnome-driver.py GNOME_DRIVER_SOCKET=$XDG_RUNTIME_DIR/driver.sock
"$DESKTOP_DRIVER" serve "$GNOME_DRIVER_SOCKET" >"$XDG_RUNTIME_DIR/driver.log" 2>&1 &
pids+=($!)
wait_for 30 "$DESKTOP_DRIVER" focused || fail "the input driver did not start: $(cat "$XDG_RUNTIME_DIR/driver.log")"
# The shell starts in the overview, which holds the keyboard until Escape.
"$DESKTOP_DRIVER" key Escape
wait_for 20 "$DESKTOP_DRIVER" eval '!Main.overview.visible' || fail "the overview stays open"

"$@"
