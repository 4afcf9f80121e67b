#!/usr/bin/env bash
# Runs the benchmarks under private X servers at 1920x1080 and 3840x2160 and writes
#   OUTPUT (Markdown): medians, minima and maxima of every measure.
#   run-bench.sh BENCH_BINARY OUTPUT [RUNS]
set -euo pipefail
bench="$1"
output="$2"
runs="${3:-15}"
mkdir -p "$(dirname "$output")"
{
    echo "# Vantle benchmarks"
    echo
    echo "$(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2- | sed 's/^ //')"
    echo
} >"$output"
for size in 1920x1080 3840x2160; do
    fifo_dir=$(mktemp -d)
    mkfifo "$fifo_dir/display"
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$fifo_dir/display" >/dev/null 2>&1 &
    xvfb=$!
    read -r -t 20 display_number <"$fifo_dir/display"
    rm -rf "$fifo_dir"
    {
        echo "## X11 sampler at $size (Xvfb, MIT-SHM, scale 1)"
        echo
        echo "| measure | median | min | max | runs |"
        echo "|---|---|---|---|---|"
        DISPLAY=":$display_number" QT_QPA_PLATFORM=xcb "$bench" "$runs"
        echo
    } >>"$output"
    kill "$xvfb"
    wait "$xvfb" 2>/dev/null || true
done
cat "$output"
