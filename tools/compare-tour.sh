#!/usr/bin/env bash
# Renders the tour of a build and compares it, picture by picture, with an earlier tour folder, so a
# change that should show nothing new can prove it. Usage: tools/compare-tour.sh BUILD_DIR BEFORE_DIR
# (BEFORE_DIR made the same way: TZ=UTC wanderkit --now "2026-03-14 09:26:53" --tour BEFORE_DIR).
# The device clock is fixed for both. PNG files are compared byte for byte: the same pixels written by
# the same Qt give the same bytes.
set -euo pipefail
build=$1
before=$2
after=$(mktemp -d)
trap 'rm -rf "$after"' EXIT
QT_QPA_PLATFORM=offscreen TZ=UTC "$build/bin/wanderkit" --now "2026-03-14 09:26:53" --tour "$after" >/dev/null 2>&1
status=0
for picture in "$before"/*.png; do
    name=$(basename "$picture")
    if [ ! -f "$after/$name" ]; then
        echo "missing: $name"
        status=1
    elif ! cmp -s "$picture" "$after/$name"; then
        echo "differs: $name"
        status=1
    fi
done
[ $status -eq 0 ] && echo "identical: $(ls "$before"/*.png | wc -l) pictures"
exit $status
