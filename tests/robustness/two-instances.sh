#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Two Vantles started at once, 20 times (half on the session bus, half on the fallback socket):
# one keeps running, the other hands over and ends, and the survivor's launch writes are on disk.
#   VANTLE_BIN=... x11-session.sh two-instances.sh
set -euo pipefail

vantle=${VANTLE_BIN:?}
rounds=${VANTLE_INSTANCE_ROUNDS:-20}

source "$(dirname "${BASH_SOURCE[0]}")/../desktop/test-home.sh"
on_failure() { tail -n 20 "$home"/first.log "$home"/second.log >&2 2>/dev/null; }
running() { kill -0 "$1" 2>/dev/null && [[ $(ps -o stat= -p "$1") != Z* ]]; }

# A run that hangs says where it stood (the last traced steps, this script's children) and
# fails after 120 s, instead of being cut off silently at the test's timeout.
exec 9>"$home/trace"
BASH_XTRACEFD=9
set -x
trap 'fail "hangs; last steps: $(grep -v "sleep 0.0" "$home/trace" | tail -n 6 | tr "\n" "|"); children: $(ps -o pid=,stat=,args= --ppid $$ | tr "\n" "|")"' USR1
(sleep 120 && kill -USR1 $$) >/dev/null 2>&1 &
watchdog=$!
trap 'kill "$watchdog" 2>/dev/null; end_started; remove_tree "$home"' EXIT
exited() { ! running "$1"; }
config_has() { grep -q "^$1\$" "$XDG_CONFIG_HOME/Vantle/Vantle.conf" 2>/dev/null; }

bus=$DBUS_SESSION_BUS_ADDRESS
for ((round = 1; round <= rounds; round++)); do
    rm -rf "${home:?}"/config "${home:?}"/data "${home:?}"/go
    export XDG_RUNTIME_DIR=$home/run-$round
    mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
    # Even rounds: an address that leads nowhere (unset, libdbus would launch a bus of its own).
    way="session bus" && export DBUS_SESSION_BUS_ADDRESS=$bus
    ((round % 2)) || { way="fallback socket" && export DBUS_SESSION_BUS_ADDRESS=unix:path=$home/no-bus; }

    # Both wait for the same file to appear, then start at once.
    go=$home/go pids=()
    for log in first second; do
        (while [[ ! -e $go ]]; do sleep 0.001; done; exec "$vantle" >"$home/$log.log" 2>&1) &
        pids+=($!)
    done
    first=${pids[0]} second=${pids[1]}
    sleep 0.3
    touch "$go"

    # One of them hands over to the other and ends; the other keeps running.
    wait_for 20 eval '! running $first || ! running $second' || fail "round $round ($way): both still run"
    survivor=$second loser=$first
    ! running "$first" || survivor=$first loser=$second
    wait "$loser" || fail "round $round ($way): the second start failed (exit $?)"
    # The survivor's launch writes (the seeded shortcuts, this one last) are all there.
    wait_for 20 config_has 'popoverKeyChar=X' && config_has 'pickKeyCode=8' || fail "round $round ($way): shortcuts not written"
    running "$survivor" || fail "round $round ($way): no Vantle kept running"
    socket=$XDG_RUNTIME_DIR/vantle-$(id -u).socket
    [[ $way == "session bus" || $(stat -c %a "$socket") == [67]00 ]] \
        || fail "round $round: no socket at $socket, or one open to others"
    kill -TERM "$survivor"
    wait_for 20 exited "$survivor" || fail "round $round ($way): Vantle did not quit"
    wait "$survivor" 2>/dev/null || true
    pids=()
    echo "round $round ($way): one instance, settings complete"
done

# A crashed Vantle leaves its socket behind: the next start takes over, and requests reach it.
rm -rf "${home:?}"/config "${home:?}"/data
export XDG_RUNTIME_DIR=$home/run-stale DBUS_SESSION_BUS_ADDRESS=unix:path=$home/no-bus
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
socket=$XDG_RUNTIME_DIR/vantle-$(id -u).socket
"$vantle" >"$home/first.log" 2>&1 &
crashed=$! pids=($!)
wait_for 20 test -S "$socket" || fail "stale socket: the first Vantle never listened"
kill -KILL "$crashed" && wait "$crashed" 2>/dev/null || true
[[ -S $socket ]] || fail "stale socket: the killed Vantle left no socket to test with"
started=$SECONDS
if "$vantle" toggle 2>"$home/second.log"; then fail "stale socket: a request to a dead Vantle succeeded"; fi
((SECONDS - started <= 2)) || fail "stale socket: a request to a dead Vantle took $((SECONDS - started)) s"
grep -q "not running" "$home/second.log" || fail "stale socket: no 'not running' message"
rm -rf "${home:?}"/config
"$vantle" >"$home/first.log" 2>&1 &
pids=($!)
wait_for 20 config_has 'popoverKeyChar=X' || fail "stale socket: the new Vantle never launched"
"$vantle" toggle 2>"$home/second.log" || fail "stale socket: the new Vantle does not answer"
echo "PASS: $rounds double starts, one Vantle each time; a stale socket taken over"
