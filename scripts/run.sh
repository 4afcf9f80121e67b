#!/usr/bin/env bash
# run.sh VANTLE: starts Vantle in the user's graphical session.
set -euo pipefail
vantle=$1
if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
    exec "$vantle"
fi
echo "No graphical session found (neither DISPLAY nor WAYLAND_DISPLAY is set)." >&2
exec "$vantle" --help
