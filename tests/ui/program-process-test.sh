#!/usr/bin/env bash
# The program as a process: its options, usage errors, an unusable state folder, the single instance, and
# `wanderkit map`, which writes its PNG with no display.
set -u
program=$1
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"

check "an unknown option exits 2 with the usage" "2 yes" \
    "$(status "$program" --frobnicate) $(says "unknown option --frobnicate" "Usage: wanderkit")"
check "a malformed size exits 2" 2 "$(status "$program" --size 240)"
check "a window over 8192 pixels exits 2" "2 yes" \
    "$(status "$program" --scale 3 --size 240x2731 --exit-after-first-paint) $(says "larger than 8192 pixels")"
for option in --tour --state-dir --device-root=; do
    check "an empty $option exits 2" "2 yes" "$(status "$program" "$option" "") $(says "${option%=} needs a value")"
done
check "--help exits 0 and lists the options" "0 1" "$(status "$program" --help) $(grep -c -- "--state-dir" "$work/out")"
check "--version names the program" "0 1" "$(status "$program" --version) $(grep -c "^Wanderkit " "$work/out")"
touch "$work/not-a-folder"
bad="$work/not-a-folder/state"
check "an unusable state folder exits 1 and is named" "1 yes" \
    "$(status "$program" --state-dir "$bad" --exit-after-first-paint) $(says "$bad")"
check "with no display to open the window on, exits 1 and says so" "1 yes" \
    "$(status env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$program" --state-dir "$work/state0") $(says "no display")"

# The first instance runs; a second start raises it and leaves at once with 0, opening no state.
amount() { "$program" --state-dir "$work/state" settings get 'Wanderkit\currencies' curval; }
"$program" --state-dir "$work/state" settings set 'Wanderkit\currencies' curval 12 --type string >/dev/null
"$program" --state-dir "$work/state" >"$work/first.log" 2>&1 &
first=$!
for _ in $(seq 600); do [ -S "$XDG_RUNTIME_DIR/{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}" ] && break; sleep 0.1; done
check "a second instance exits 0 and opens no state" "0 no" \
    "$(status timeout 10 "$program" --state-dir "$work/state2") $([ -e "$work/state2" ] && echo yes || echo no)"
kill -0 $first 2>/dev/null
check "the first instance keeps running" 0 $?
kill $first
wait $first
check "SIGTERM ends it as Exit does: 0, and the typed amount is forgotten" "0 " "$? $(amount)"

check "--exit-after-first-paint ends with 0 and a private state folder" "0 700" \
    "$(status timeout 60 "$program" --state-dir "$work/state3" --exit-after-first-paint) $(stat -c %a "$work/state3")"
# A negative amount after the command is an amount, and program options may follow it.
check "convert takes a negative amount" "0 -40.000000" \
    "$(status "$program" convert -40 "°C - Degree Celsius" 4:1 --state-dir "$work/state4") $(cat "$work/out")"

# Width and height from a PNG's header, and whether it starts with the PNG signature.
png_size() { od -An -tu4 --endian=big -j16 -N8 "$1" | awk '{ printf "%dx%d", $1, $2 }'; }
png_signature() { od -An -tx1 -N8 "$1" | tr -d ' \n'; }
# shellcheck disable=SC2317 # called through status
run() { env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM \
    "$program" --state-dir "$work/map" --now "2026-03-20 13:00:00" map "$@"; }
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
    "$(status run "$work/x.png" --state-dir "$work/map2" --device-root "$work/empty-root") $(says day.jpg)"
# Nobody answers a tour's message boxes: each is printed, and the tour goes on to the end.
check "a tour of an empty device root ends with 0 and prints its messages" "0 yes" \
    "$(status timeout 60 "$program" --tour "$work/tour" --device-root "$work/empty-root") \
$(says "Initial Cities File not found!" "Sorry, Weather Forecast is not available for this City.")"
finish
