#!/usr/bin/env bash
# The program as a process: usage errors, an unusable state folder, the single instance and the tour.
set -u
program=$1
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"

"$program" --frobnicate >"$work/out" 2>"$work/err"
check "an unknown option exits 2" 2 $?
grep -q "unknown option --frobnicate" "$work/err" && grep -q "Usage: wanderkit" "$work/err"
check "an unknown option prints the usage" 0 $?

"$program" --size 240 >/dev/null 2>&1
check "a malformed size exits 2" 2 $?

"$program" --help >"$work/out"
check "--help exits 0" 0 $?
grep -q -- "--state-dir" "$work/out"
check "--help lists the options" 0 $?

"$program" --version | grep -q "^Wanderkit "
check "--version names the program" 0 $?

touch "$work/not-a-folder"
"$program" --state-dir "$work/not-a-folder/state" --exit-after-first-paint >"$work/out" 2>"$work/err"
check "an unusable state folder exits 1" 1 $?
grep -q "$work/not-a-folder/state" "$work/err"
check "the message names the state folder" 0 $?

# The first instance runs; a second start raises it and leaves at once with 0.
"$program" --state-dir "$work/state" >"$work/first.log" 2>&1 &
first=$!
for _ in $(seq 50); do [ -S "$XDG_RUNTIME_DIR/{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}" ] && break; sleep 0.1; done
timeout 10 "$program" --state-dir "$work/state2" >/dev/null 2>&1
check "a second instance exits 0" 0 $?
test ! -e "$work/state2"
check "a second instance opens no state" 0 $?
kill -0 $first 2>/dev/null
check "the first instance keeps running" 0 $?
kill $first
wait $first 2>/dev/null

# Many starts at the same moment on the same state: exactly one keeps running and the others leave
# with 0. The survivor is then killed, leaving its socket behind for the next round to take over.
# WANDERKIT_RACE_ROUNDS sets the rounds (default 3, of 10 starts each).
for round in $(seq "${WANDERKIT_RACE_ROUNDS:-3}"); do
    pids=()
    for _ in $(seq 10); do
        "$program" --state-dir "$work/race" >/dev/null 2>&1 &
        pids+=($!)
    done
    for _ in $(seq 150); do
        running=0
        for pid in "${pids[@]}"; do kill -0 "$pid" 2>/dev/null && running=$((running + 1)); done
        [ "$running" -le 1 ] && break
        sleep 0.2
    done
    check "round $round: one of ten simultaneous starts keeps running" 1 "$running"
    left=0
    for pid in "${pids[@]}"; do
        if kill -0 "$pid" 2>/dev/null; then
            kill -9 "$pid"
            wait "$pid" 2>/dev/null
        else
            wait "$pid" && left=$((left + 1))
        fi
    done
    check "round $round: the other nine leave with 0" 9 "$left"
done

timeout 60 "$program" --state-dir "$work/state3" --exit-after-first-paint >/dev/null 2>&1
check "--exit-after-first-paint ends with 0" 0 $?
test "$(stat -c %a "$work/state3")" = 700
check "the state folder is private" 0 $?

# A negative amount after the command is an amount, and program options may follow it.
out=$("$program" convert -40 "°C - Degree Celsius" 4:1 --state-dir "$work/state4" 2>"$work/err")
check "convert takes a negative amount" "0 -40.000000" "$? $out"

timeout 60 "$program" --tour "$work/tour" >"$work/out" 2>&1
check "the tour exits 0" 0 $?
test -s "$work/tour/launcher.png"
check "the tour renders the launcher" 0 $?
test -s "$work/tour/launcher-landscape.png"
check "the tour renders the launcher in landscape" 0 $?

finish
