#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# ensure-deps.sh LIST...: makes sure the Debian packages named in scripts/packages/LIST.txt
# are installed. As root it installs what is missing with apt-get; otherwise it prints the
# exact command to run and fails.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

wanted=()
for list in "$@"; do
    while read -r pkg; do
        [[ -z "$pkg" || "$pkg" == \#* ]] && continue
        wanted+=("$pkg")
    done <"$here/packages/$list.txt"
done

missing=()
for pkg in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$pkg")
done
# Remove duplicates while keeping order.
mapfile -t missing < <(printf '%s\n' "${missing[@]}" | awk 'NF && !seen[$0]++')

if ((${#missing[@]})); then
    if ! command -v apt-get >/dev/null; then
        echo "Vantle needs these Debian/Ubuntu packages (or your system's equivalents): ${missing[*]}" >&2
        exit 1
    fi
    if [[ $(id -u) -ne 0 ]]; then
        echo "Vantle needs packages that are not installed. Run:" >&2
        echo "    sudo apt-get install ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q
    apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

# The locale test wants a locale with decimal commas; generate one when we may.
if [[ " $* " == *" test "* && $(id -u) -eq 0 ]] && command -v locale-gen >/dev/null \
    && ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    sed -i 's/^# *\(de_DE.UTF-8 UTF-8\)/\1/' /etc/locale.gen 2>/dev/null || true
    grep -q '^de_DE.UTF-8 UTF-8' /etc/locale.gen 2>/dev/null || echo 'de_DE.UTF-8 UTF-8' >>/etc/locale.gen
    locale-gen >/dev/null 2>&1 || true
fi
exit 0
