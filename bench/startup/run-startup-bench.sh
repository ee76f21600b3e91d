#!/usr/bin/env bash
# Start-up to the first painted launcher frame, against a minimal Qt 6 Widgets program (Qt's hello
# world: one window with one line of text) that exits after its first paint. Prints the median of N runs of each (default 20) and the ratio;
# the target is a ratio of at most 1.5. Usage: bench/startup/run-startup-bench.sh BUILD_DIR [RUNS]
set -euo pipefail
build=${1:?build folder}
runs=${2:-20}
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
state=$(mktemp -d)
runtime=$(mktemp -d)
trap 'rm -rf "$state" "$runtime"' EXIT
export XDG_RUNTIME_DIR=$runtime

median_ms() { # command...
    local times=()
    for _ in $(seq "$runs"); do
        local start=$EPOCHREALTIME
        "$@" >/dev/null 2>&1
        local end=$EPOCHREALTIME
        times+=("$(awk -v s="$start" -v e="$end" 'BEGIN { printf "%.2f", (e - s) * 1000 }')")
    done
    printf '%s\n' "${times[@]}" | sort -n | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) }'
}

# The first start fills the stores; the timed starts are the everyday ones.
"$build/bin/wanderkit" --state-dir "$state" --exit-after-first-paint >/dev/null 2>&1
minimal=$(median_ms "$build/bin/bench_minimal_window")
wanderkit=$(median_ms "$build/bin/wanderkit" --state-dir "$state" --exit-after-first-paint)
awk -v m="$minimal" -v w="$wanderkit" -v n="$runs" 'BEGIN {
    printf "minimal Qt window: median %.1f ms over %d runs\n", m, n
    printf "wanderkit launcher: median %.1f ms over %d runs\n", w, n
    printf "ratio %.2f (target at most 1.50)\n", w / m
    exit (w / m > 1.5)
}'
