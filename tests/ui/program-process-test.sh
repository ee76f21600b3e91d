#!/usr/bin/env bash
# The program as a process: its options, usage errors, an unusable state folder and the single instance.
set -u
program=$1
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"

check "an unknown option exits 2 with the usage" "2 yes" \
    "$(status "$program" --frobnicate) $(says "unknown option --frobnicate" "Usage: wanderkit")"
check "a malformed size exits 2" 2 "$(status "$program" --size 240)"
check "--help exits 0 and lists the options" "0 1" "$(status "$program" --help) $(grep -c -- "--state-dir" "$work/out")"
check "--version names the program" "0 1" "$(status "$program" --version) $(grep -c "^Wanderkit " "$work/out")"
touch "$work/not-a-folder"
bad="$work/not-a-folder/state"
check "an unusable state folder exits 1 and is named" "1 yes" \
    "$(status "$program" --state-dir "$bad" --exit-after-first-paint) $(says "$bad")"

# The first instance runs; a second start raises it and leaves at once with 0, opening no state.
"$program" --state-dir "$work/state" >"$work/first.log" 2>&1 &
first=$!
for _ in $(seq 50); do [ -S "$XDG_RUNTIME_DIR/{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}" ] && break; sleep 0.1; done
check "a second instance exits 0 and opens no state" "0 no" \
    "$(status timeout 10 "$program" --state-dir "$work/state2") $([ -e "$work/state2" ] && echo yes || echo no)"
kill -0 $first 2>/dev/null
check "the first instance keeps running" 0 $?
kill $first && wait $first 2>/dev/null

check "--exit-after-first-paint ends with 0 and a private state folder" "0 700" \
    "$(status timeout 60 "$program" --state-dir "$work/state3" --exit-after-first-paint) $(stat -c %a "$work/state3")"
# A negative amount after the command is an amount, and program options may follow it.
check "convert takes a negative amount" "0 -40.000000" \
    "$(status "$program" convert -40 "°C - Degree Celsius" 4:1 --state-dir "$work/state4") $(cat "$work/out")"
finish
