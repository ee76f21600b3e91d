#!/usr/bin/env bash
# `wanderkit map` as a process: the PNG it writes, its sizes and its usage errors. No display is used.
set -u
program=$1
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
# Width and height from a PNG's header, and whether it starts with the PNG signature.
png_size() { od -An -tu1 -j16 -N8 "$1" | awk '{ printf "%dx%d", $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8 }'; }
png_signature() { od -An -tx1 -N8 "$1" | tr -d ' \n'; }
# shellcheck disable=SC2317 # called through status
run() { "$program" --state-dir "$work/state" --now "2026-03-20 13:00:00" map "$@"; }

check "the default map exits 0, a PNG of 1024x512" "0 89504e470d0a1a0a 1024x512" \
    "$(status run "$work/default.png") $(png_signature "$work/default.png") $(png_size "$work/default.png")"
# The handheld's picture up to 240x138, the large one above; --markers needs no display either.
for options in "--size 1x1" "--size 240x138" "--size 3000x1500" "--size=480x240 --markers"; do
    size=${options:7}
    # shellcheck disable=SC2086 # the options are words
    check "$options exits 0 and draws at that size" "0 ${size%% *}" \
        "$(status run "$work/map.png" $options) $(png_size "$work/map.png")"
done

for size in 0x100 100x0 16385x100 100x16385 100 x100 10x10x10; do
    check "--size $size exits 2 and says what a size is" "2 yes" \
        "$(status run "$work/bad.png" --size "$size") $(says "each 1 to 16384")"
done
check "a bad size writes nothing" no "$([ -e "$work/bad.png" ] && echo yes || echo no)"

check "no file, two files and an unknown option are usage errors" "2 2 2" \
    "$(status run) $(status run "$work/a.png" "$work/b.png") $(status run "$work/a.png" --frobnicate)"
check "an unwritable file exits 1 and is named" "1 yes" \
    "$(status run "$work/no/such/folder/map.png") $(says "cannot write")"
mkdir "$work/empty-root"
check "a device root without day.jpg exits 1 and names it" "1 yes" \
    "$(status "$program" --state-dir "$work/state2" --device-root "$work/empty-root" map "$work/x.png") $(says day.jpg)"
finish
