#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The folders of src/ are layers: each may include its own headers and those of the layers
# below it, never one above. model is the bottom; app, the composition root, sees everything.
#   layers-test.sh SRC_DIR
set -euo pipefail
src=${1:?}
declare -A allowed=(
    [model]="model"
    [services]="model services"
    [history]="model services history"
    [hotkeys]="model services hotkeys"
    [platform]="model services history hotkeys platform"
    [screens]="model services history hotkeys screens"
    [app]="model services history hotkeys platform screens app"
)
status=0
for folder in "${!allowed[@]}"; do
    while IFS=: read -r file line include; do
        target=$(sed -E 's/.*#include "([a-z]+)\/.*/\1/' <<<"$include")
        [[ -n ${allowed[$target]+set} ]] || continue # not one of our folders
        if [[ " ${allowed[$folder]} " != *" $target "* ]]; then
            echo "$file:$line: $folder may not include $target: $include"
            status=1
        fi
    done < <(grep -rnE '^#include "[a-z]+/' "$src/$folder" || true)
done
((status == 0)) && echo "layers hold"
exit $status
