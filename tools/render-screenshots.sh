#!/usr/bin/env bash
# Renders the README's screenshots with the program's own tour, at a fixed time, into docs/.
# Usage: tools/render-screenshots.sh [BUILD_DIR]   (build first: scripts/run.sh or cmake --build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
TZ=UTC QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$out" \
    "$build/bin/wanderkit" --tour "$out/tour" --now "2026-07-14 09:41:27" >/dev/null
mkdir -p docs
cp "$out"/tour/*.png docs/
ls docs
