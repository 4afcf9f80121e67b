#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Screenshots of the settings pages and update dialogs as a person sees them, for review.
# Run inside tests/desktop/x11-session.sh:
#   tests/desktop/x11-session.sh tests/screens/screenshots.sh build/bin/settings-showcase OUTDIR
set -euo pipefail
showcase=$1
out=$2
mkdir -p "$out"
for shot in general about more update progress ready "general --dark" "about --dark" "update --dark"; do
    read -r -a args <<<"$shot"
    "$showcase" "${args[@]}" >/dev/null 2>&1 &
    pid=$!
    # Wait for the window to be mapped, then for the first paint to settle.
    deadline=$((SECONDS + 20))
    until xdotool search --onlyvisible --pid "$pid" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || { echo "no window for $shot" >&2; kill "$pid"; exit 1; }
        sleep 0.1
    done
    sleep 0.5
    import -window root "$out/${shot// /}.png"
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
done
