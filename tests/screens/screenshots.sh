#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Captures every popup screen in a light and a dark theme on the private X display that
# tests/desktop/x11-session.sh provides, and checks that the popup keeps its 320-pixel width
# and that the detail screen of the longest texts draws every one of them whole.
#   screenshots.sh SHOWCASE_BINARY OUTPUT_FOLDER
set -euo pipefail
showcase=$1
out=$2
mkdir -p "$out"
command -v import >/dev/null || { echo "SKIP: ImageMagick's import is missing" >&2; exit 77; }
for theme in light dark; do
    for screen in empty list detail longest rename; do
        file="$out/$screen-$theme.png"
        rm -f "$file"
        output=$("$showcase" --theme "$theme" --screen "$screen" --output "$file") \
            || { echo "$screen ($theme): $output" >&2; exit 1; }
        size=$(sed -n 's/^view //p' <<<"$output")
        [[ -s "$file" ]] || { echo "no screenshot for $screen ($theme)" >&2; exit 1; }
        [[ ${size%x*} == 320 ]] || { echo "$screen ($theme) is ${size%x*} pixels wide, not 320" >&2; exit 1; }
        echo "$file: view $size"
    done
done
