# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced once by the scripts that run Vantle on a test desktop: a throwaway home; pids+=(PID)
# end at exit; `fail MESSAGE` runs the script's on_failure, if any, and exits 1.
[[ -z ${test_home:-} ]] || return 0
source "$(dirname "${BASH_SOURCE[0]}")/wait-for.sh"

pids=()
fail() {
    echo "FAIL: $*" >&2
    [[ $(type -t on_failure) != function ]] || on_failure || true
    exit 1
}
trap 'status=$?; echo "FAIL: line $LINENO: \"$BASH_COMMAND\" ended with status $status" >&2' ERR
trap 'end_started; remove_tree "$home"' EXIT

# Under Wayland the session's runtime folder holds the compositor's socket, so it stays.
if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
    home=$(mktemp -d -p "$XDG_RUNTIME_DIR")
else
    home=$(mktemp -d)
    export XDG_RUNTIME_DIR=$home/run
fi
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
mkdir -p "$XDG_CONFIG_HOME/Vantle" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
test_home=$home
