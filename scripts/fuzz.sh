#!/usr/bin/env bash
# Builds the fuzz targets (clang, libFuzzer, AddressSanitizer, UBSan) in build-fuzz/ and runs each for
# SECONDS (default 60) on a copy of its seed corpus fuzz/corpus/<target>/. Exits non-zero when any target
# finds a crash, a leak or a timeout; the input that did it is kept in build-fuzz/artifacts/.
# FUZZ_JOBS=N runs N targets at once (default 1); FUZZ_RUNS=N runs each for N executions instead of a
# time (FUZZ_RUNS=1000000 is the long check).
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
jobs=${FUZZ_JOBS:-1}
limit="-max_total_time=$seconds"
[ -n "${FUZZ_RUNS:-}" ] && limit="-runs=$FUZZ_RUNS"
build=build-fuzz
scripts/install-deps.sh

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-14 -DWANDERKIT_FUZZ=ON \
    -DWANDERKIT_GUI=OFF -DWANDERKIT_TESTS=OFF -DWANDERKIT_WERROR=ON >/dev/null
cmake --build "$build" -j"$(nproc)"

mkdir -p "$build/artifacts" "$build/logs"
run_target() {
    local target=$1 work="$build/corpus/$1" seeds=()
    mkdir -p "$work"
    [ -d "fuzz/corpus/$target" ] && seeds=("fuzz/corpus/$target")
    # New inputs go to the work folder; the committed seeds are only read.
    if ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        "$build/bin/$target" "$work" "${seeds[@]}" "$limit" -timeout=10 \
        -max_len=4096 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$build/artifacts/$target-" \
        >"$build/logs/$target.log" 2>&1; then
        echo "$target: $(grep -o 'stat::number_of_executed_units: *[0-9]*' "$build/logs/$target.log" \
            | grep -o '[0-9]*$') runs, no crash, leak or timeout"
    else
        echo "$target: FAILED (see $build/logs/$target.log)"
        tail -n 40 "$build/logs/$target.log"
        return 1
    fi
}
export -f run_target
export build limit

targets=$(cd "$build/bin" && ls -- *Fuzz)
if printf '%s\n' $targets | xargs -P "$jobs" -I{} bash -c 'run_target {}'; then
    each=${FUZZ_RUNS:+$FUZZ_RUNS runs}
    echo "Fuzzing passed: $(echo $targets | wc -w) targets, ${each:-$seconds s} each."
else
    echo "Fuzzing found a fault." >&2
    exit 1
fi
