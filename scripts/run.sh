#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# run.sh VANTLE: starts Vantle in the user's graphical session. Without one (a server, a
# container, CI), it starts a virtual X desktop with a window manager and a system tray, runs
# Vantle inside it, and says how to drive it.
set -euo pipefail
vantle=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)

if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
    exec "$vantle"
fi

echo "No graphical session here: starting Vantle on a virtual X desktop."
state=$(mktemp -d /tmp/vantle-run.XXXXXX)
export VANTLE="$vantle"
export VANTLE_RUN_STATE="$state"
export XDG_CONFIG_HOME="$state/config" # a fresh profile: nothing of yours is touched
mkdir -p "$XDG_CONFIG_HOME"
exec "$here/../tests/desktop/x11-session.sh" --size 1280x800 "$here/run-inside.sh"
