# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the desktop test scripts.
# wait_for SECONDS COMMAND...: retry briefly until COMMAND succeeds; false once SECONDS passed.
wait_for() {
    local deadline=$((SECONDS + $1)); shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}
