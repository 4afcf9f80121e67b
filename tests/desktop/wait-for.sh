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

# end_started: ends the background processes the script started (pids+=($!)), newest first;
# with `pids=(); trap end_started EXIT` they end when it exits.
end_started() {
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[$i]}" 2>/dev/null || true; done
    wait 2>/dev/null || true
}
