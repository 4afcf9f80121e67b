#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# KDE_DESKTOP_DRIVER=kde_desktop_driver kde-session.sh COMMAND [ARGS...]: runs COMMAND in a
# private KDE Plasma desktop on Wayland (virtual kwin_wayland with Xwayland, the KDE portal, a tray
# watcher; as `nobody` when root) with DESKTOP_DRIVER (kde-driver.py; verbs: desktop-checks.sh).
set -euo pipefail

skip() { echo "SKIP: $*" >&2; exit 77; }

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/wait-for.sh"
source "$here/private-session.sh"
portal_kde=/usr/lib/x86_64-linux-gnu/libexec/xdg-desktop-portal-kde
frontend=/usr/libexec/xdg-desktop-portal

if [[ -z "${VANTLE_IN_KDE_SESSION:-}" ]]; then
    command -v kwin_wayland >/dev/null || skip "KWin is not installed (apt-get install kwin-wayland)"
    [[ -x $portal_kde && -x $frontend ]] || skip "the KDE portal is not installed (apt-get install xdg-desktop-portal-kde)"
    [[ -x ${KDE_DESKTOP_DRIVER:-} ]] || skip "KDE_DESKTOP_DRIVER names no driver"
    # KWin's file capability lies outside a container's bounding set, where exec of the
    # installed binary fails: a plain copy runs anywhere.
    prepare_session() { cp "$(command -v kwin_wayland)" "$1/kwin_wayland"; }
    private_session VANTLE_IN_KDE_SESSION "$0" "$@"
fi

pids=()
trap end_started EXIT
log=$XDG_RUNTIME_DIR/logs
mkdir -p "$log"

unset DISPLAY WAYLAND_DISPLAY
export XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
export NO_AT_BRIDGE=1
# Software OpenGL compositing: the QPainter one has no colour picker for the portal. Fake input
# is granted to every client, as to a desktop entry that lists org_kde_kwin_fake_input.
KWIN_COMPOSE=O2 LIBGL_ALWAYS_SOFTWARE=1 KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 KWIN_SCREENSHOT_NO_PERMISSION_CHECKS=1 \
    kwin_wayland --virtual --width 1280 --height 800 --no-lockscreen --socket wayland-kde --xwayland \
    >"$log/kwin.log" 2>&1 &
pids+=($!)
bus_owned() { dbus-send --session --print-reply --dest=org.freedesktop.DBus / org.freedesktop.DBus.GetNameOwner "string:$1"; }
if ! wait_for 40 bus_owned org.kde.KWin || ! [[ -S $XDG_RUNTIME_DIR/wayland-kde ]]; then
    tail -n 20 "$log/kwin.log" >&2 || true
    skip "headless KWin could not start here (log above)"
fi
export WAYLAND_DISPLAY=wayland-kde QT_QPA_PLATFORM=wayland
dbus-update-activation-environment WAYLAND_DISPLAY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE QT_QPA_PLATFORM \
    KDE_FULL_SESSION KDE_SESSION_VERSION

# Plasma's tray watcher, then the KDE portal behind the frontend, as Plasma starts them; the
# frontend reads only kde.portal, so no other desktop's portal stands in. The driver tells
# KWin's picker on screen from the calls logged here.
export DESKTOP_DRIVER=$here/kde-driver.py
dbus-monitor --session "interface='org.kde.kwin.ColorPicker'" "type='method_return'" "type='error'" \
    >"$log/pickers.log" 2>&1 &
pids+=($!)
"$DESKTOP_DRIVER" tray-watcher >"$log/tray-watcher.log" 2>&1 &
pids+=($!)
wait_for 20 bus_owned org.kde.StatusNotifierWatcher || skip "the tray watcher did not start"
"$portal_kde" >"$log/portal-kde.log" 2>&1 &
pids+=($!)
wait_for 20 bus_owned org.freedesktop.impl.portal.desktop.kde || skip "xdg-desktop-portal-kde did not start"
mkdir -p "$XDG_RUNTIME_DIR/portals"
cp /usr/share/xdg-desktop-portal/portals/kde.portal "$XDG_RUNTIME_DIR/portals/"
XDG_DESKTOP_PORTAL_DIR=$XDG_RUNTIME_DIR/portals "$frontend" --replace >"$log/portal.log" 2>&1 &
pids+=($!)
wait_for 20 bus_owned org.freedesktop.portal.Desktop || skip "xdg-desktop-portal did not start"

"$@"
