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
    local i pid
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[$i]}" 2>/dev/null || true; done
    # One that does not end on SIGTERM is named and killed, rather than holding the test to its timeout.
    for pid in "${pids[@]}"; do
        wait_for 10 eval "[[ \$(ps -o stat= -p $pid) != [^Z]* ]]" && continue
        echo "FAIL: $(ps -o args= -p "$pid") did not end on SIGTERM" >&2
        kill -KILL "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
}
# need_tools TOOL...: skips the test (exit 77) unless every tool is installed.
need_tools() {
    local tool
    for tool; do command -v "$tool" >/dev/null || { echo "SKIP: $tool is missing" >&2; exit 77; }; done
}
# remove_tree DIR: the document portal, started on the bus with the portal frontend, mounts a
# FUSE file system at $XDG_RUNTIME_DIR/doc, which rm cannot remove: unmount what lies inside first.
remove_tree() {
    local mount
    for mount in $(awk -v dir="$1/" 'index($5, dir) == 1 {print $5}' /proc/self/mountinfo | sort -r); do
        fusermount3 -u -z "$mount" 2>/dev/null || fusermount -u -z "$mount" 2>/dev/null || umount -l "$mount" || true
    done
    rm -rf "$1"
}
