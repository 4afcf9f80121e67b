#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle's speed and footprint next to the floor programs, on private X desktops (Xvfb, openbox,
# trayer, a private session bus; tests/desktop/x11-session.sh) at 1920x1080 and 3840x2160.
# Never touches the user's own desktop or settings.
#
#   run-bench.sh BIN_DIR OUT_DIR
#
# BIN_DIR holds vantle, the floors and the bench programs; OUT_DIR receives figures.jsonl (every
# sample), results.md and results.json. Knobs (environment): RUNS (10), IDLE seconds (60),
# PICKS (100), TOGGLES (20), SIZES ("1920x1080 3840x2160"), REQUIRE (figures that must be there).
set -euo pipefail
bin=$(cd "$1" && pwd)
out=$2
runs=${RUNS:-10}
idle=${IDLE:-60}
picks=${PICKS:-100}
toggles=${TOGGLES:-20}
sizes=${SIZES:-1920x1080 3840x2160}
here=$(cd "$(dirname "$0")" && pwd)
session="$here/../tests/desktop/x11-session.sh"

mkdir -p "$out"
out=$(cd "$out" && pwd)
figures="$out/figures.jsonl"
: >"$figures"

# Settings, history and runtime files of the programs under test live here and nowhere else.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run
export XDG_CACHE_HOME=$home/cache
mkdir -p "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME" && chmod 700 "$XDG_RUNTIME_DIR"
export VANTLE_BENCH_OUT=$figures

first=1
for size in $sizes; do
    echo "== $size" >&2
    phases=start,pick
    ((first)) && phases=start,pick,idle,export
    status=0
    "$session" --size "$size" "$bin/bench_harness" --vantle "$bin/vantle" --floor-tray "$bin/floor_tray" \
        --floor-overlay "$bin/floor_overlay" --out "$figures" --size "$size" --runs "$runs" --idle "$idle" \
        --picks "$picks" --toggles "$toggles" --only "$phases" || status=$?
    [[ $status == 77 ]] && exit 77
    ((status == 0)) || { echo "run-bench: the harness failed at $size" >&2; exit 1; }
    "$session" --size "$size" --no-tray "$bin/sampler_bench" "$runs"
    if ((first)); then
        "$session" --size "$size" --no-tray "$bin/history_bench" "$runs"
    fi
    first=0
done

"$bin/bench_report" --md "$out/results.md" --json "$out/results.json" ${REQUIRE:+--require "$REQUIRE"} "$figures"
echo "run-bench: wrote $out/results.md and $out/results.json" >&2
