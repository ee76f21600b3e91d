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
run() { "$program" --state-dir "$work/state" --now "2026-03-20 13:00:00" map "$@"; }

run "$work/default.png" >"$work/out" 2>"$work/err"
check "the default map exits 0" 0 $?
check "the default map is a PNG" 89504e470d0a1a0a "$(png_signature "$work/default.png")"
check "the default size is 1024x512" 1024x512 "$(png_size "$work/default.png")"

for size in 1920x1080 1x1 240x138 3000x1500; do
    run "$work/$size.png" --size "$size" >/dev/null 2>"$work/err"
    check "--size $size exits 0" 0 $?
    check "--size $size is drawn at that size" "$size" "$(png_size "$work/$size.png")"
done

run "$work/markers.png" --markers --size=480x240 >/dev/null 2>"$work/err"
check "--markers exits 0 without a display" 0 $?
check "--markers keeps the size" 480x240 "$(png_size "$work/markers.png")"

for size in 0x0 0x100 100x0 -5x10 10x-5 16385x100 100x16385 100 x100 abc 10x10x10; do
    run "$work/bad.png" --size "$size" >/dev/null 2>"$work/err"
    check "--size $size exits 2" 2 $?
    grep -q "each 1 to 16384" "$work/err"
    check "--size $size says what a size is" 0 $?
done
test ! -e "$work/bad.png"
check "a bad size writes nothing" 0 $?

run >/dev/null 2>"$work/err"
check "no file is a usage error" 2 $?
run "$work/a.png" "$work/b.png" >/dev/null 2>&1
check "two files are a usage error" 2 $?
run "$work/a.png" --frobnicate >/dev/null 2>&1
check "an unknown option is a usage error" 2 $?
run "$work/no/such/folder/map.png" >/dev/null 2>"$work/err"
check "an unwritable file exits 1" 1 $?
grep -q "cannot write" "$work/err"
check "an unwritable file is named" 0 $?

mkdir "$work/empty-root"
"$program" --state-dir "$work/state2" --device-root "$work/empty-root" map "$work/x.png" >/dev/null 2>"$work/err"
check "a device root without day.jpg exits 1" 1 $?
grep -q "day.jpg" "$work/err"
check "the missing picture is named" 0 $?

finish
