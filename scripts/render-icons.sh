#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Regenerates the application icon's PNG sizes in data/icons/hicolor from the scalable SVG.
# Run after editing data/icons/hicolor/scalable/apps/vantle.svg and commit the results. The two
# smallest sizes come from data/icons/vantle-small.svg, a simplified drawing that stays legible.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
icons="$root/data/icons/hicolor"
if ! command -v rsvg-convert >/dev/null 2>&1; then
    echo "render-icons: rsvg-convert is missing (apt-get install librsvg2-bin)" >&2
    exit 1
fi
for size in 16 24 32 48 64 128 256 512; do
    source="$icons/scalable/apps/vantle.svg"
    [ "$size" -le 24 ] && source="$root/data/icons/vantle-small.svg"
    mkdir -p "$icons/${size}x${size}/apps"
    rsvg-convert --width "$size" --height "$size" --keep-aspect-ratio \
        "$source" --output "$icons/${size}x${size}/apps/vantle.png"
done
echo "render-icons: wrote $(ls "$icons"/*x*/apps/vantle.png | wc -l) PNG sizes"
