#!/usr/bin/env bash
# Checks the shipped data files, then builds Wanderkit and runs every test: the core and the commands built without the GUI (so a Qt include
# in the core fails here, not in a packager's build), an optimised build of everything, then everything
# under AddressSanitizer and UndefinedBehaviorSanitizer, then every fuzz target for a few seconds
# (WANDERKIT_FUZZ_SECONDS, default 5). Installs missing packages first.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

jobs=$(nproc)
run_suite() {
    local dir=$1
    shift
    cmake -S . -B "$dir" -DWANDERKIT_WERROR=ON -DWANDERKIT_TESTS=ON "$@" >/dev/null
    cmake --build "$dir" -j"$jobs"
    (cd "$dir" && ctest --output-on-failure -j"$jobs")
}

echo "== Shipped data against its sources, and the data tools' own tests"
tools/check-data.sh
echo "== Core and command line, without the GUI"
run_suite build-core -DCMAKE_BUILD_TYPE=Debug -DWANDERKIT_GUI=OFF
echo "== Release build and tests"
run_suite build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DWANDERKIT_BENCH=ON
echo "== Debian package"
(cd build && cpack -G DEB >/dev/null)
lintian --fail-on error build/wanderkit_*.deb
echo "== Sanitizer build and tests"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    run_suite build-asan -DCMAKE_BUILD_TYPE=Debug -DWANDERKIT_SANITIZE=ON
echo "== Fuzz targets, a short run"
scripts/fuzz.sh "${WANDERKIT_FUZZ_SECONDS:-5}"
echo "All tests passed."
