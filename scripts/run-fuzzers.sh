#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# run-fuzzers.sh BIN_DIR SEED_CORPUS_DIR OUT_DIR SECONDS
# Runs every fuzz_<target> in BIN_DIR for SECONDS, starting from the seeds in
# SEED_CORPUS_DIR/<target>. New inputs go to OUT_DIR/corpus/<target> (the seed folders stay as
# committed), crashes to OUT_DIR/crashes/. Writes OUT_DIR/results.md with executions and
# coverage per target; fails when any target crashed or broke an invariant.
set -uo pipefail
bin=$1
seeds=$2
out=$3
seconds=$4
mkdir -p "$out/corpus" "$out/crashes" "$out/logs"
results="$out/results.md"
{
    echo "| target | seconds | executions | exec/s | coverage (edges) | features | corpus | result |"
    echo "|---|---|---|---|---|---|---|---|"
} >"$results"
failed=0
# Qt's own static data is not ours to free at exit.
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$(cd "$(dirname "$0")/.." && pwd)/tests/sanitize/lsan.supp}
for fuzzer in "$bin"/fuzz_*; do
    target=${fuzzer##*/fuzz_}
    mkdir -p "$out/corpus/$target"
    log="$out/logs/$target.log"
    echo "== $target: $seconds s"
    "$fuzzer" -max_total_time="$seconds" -print_final_stats=1 -timeout=10 -rss_limit_mb=4096 \
        -artifact_prefix="$out/crashes/$target-" "$out/corpus/$target" "$seeds/$target" >"$log" 2>&1
    status=$?
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
    last=$(grep -E '^#[0-9]+' "$log" | tail -1)
    coverage=$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$last")
    features=$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$last")
    corpus=$(sed -n 's/.* corp: \([0-9]*\/[0-9A-Za-z]*\).*/\1/p' <<<"$last")
    if ((status == 0)); then
        result=clean
    else
        result="FAILED (exit $status, see $log)"
        failed=1
        grep -E 'ERROR|invariant broken|SUMMARY' "$log" | head -5
    fi
    echo "| $target | $seconds | ${executions:-?} | ${rate:-?} | ${coverage:-?} | ${features:-?} | ${corpus:-?} | $result |" >>"$results"
    tail -1 "$results"
done
echo "Results: $results"
if ((failed)); then
    echo "Crashing inputs are in $out/crashes; add each to tests/fuzz/corpus/<target>/ once fixed." >&2
fi
exit $failed
