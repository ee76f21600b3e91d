#!/usr/bin/env bash
# Builds the program alone (no tests) and starts it. Without a display, renders every screen to PNG files instead.
# Extra arguments go to the program (for example --size 320x240 or --state-dir DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DWANDERKIT_TESTS=OFF >/dev/null
cmake --build build -j"$(nproc)" --target wanderkit

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec build/bin/wanderkit "$@"
fi
tour="${WANDERKIT_TOUR_DIR:-$PWD/build/tour}"
echo "No display is available (neither DISPLAY nor WAYLAND_DISPLAY is set), so Wanderkit cannot open its window."
echo "Rendering every screen to PNG files instead..."
QT_QPA_PLATFORM=offscreen build/bin/wanderkit --tour "$tour" "$@"
echo "The screens are in $tour:"
ls -1 "$tour"
