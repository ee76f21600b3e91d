#!/usr/bin/env bash
# shellcheck disable=SC2317 # the round functions are called through run_writer
# Writers at once: while the program has the state open and a reader reads it, processes write it all at the
# same time: `settings set`, `favourites add` and `remove`, `forecast import` and `rates import`. No command may
# fail (a write that waited too long for the lock exits 1) or mention a lock, and a later read sees each writer's
# last value. Usage: concurrent-writers-test.sh PROGRAM DEVICE_ROOT; WANDERKIT_WRITES rounds a writer (20).
set -u
program=$1
device_root=$2
writes=${WANDERKIT_WRITES:-20}
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"
state="$work/state"
wk() { "$program" --state-dir "$state" --device-root "$device_root" --now "2026-06-15 09:00:00" "$@"; }
settings() { wk settings "$@"; }

settings set Wanderkit\\hostile shared 0 >/dev/null
check "the first write creates the state" 0 $?
# The program holds its own connections to the same files throughout.
"$program" --state-dir "$state" --device-root "$device_root" >"$work/program.log" 2>&1 &
program_pid=$!

# Forecast i of Paris ends on 19/06/(2000 + i); rates file i says i dollars a euro and 2 i of the rest.
for i in $(seq "$writes"); do
    sed "s/\"2026-/\"$((2000 + i))-/" "$(dirname "$0")/../../resources/tour/forecast.json" >"$work/forecast$i.json"
    ecb_file "$device_root/currs.lst" 2026-06-01 "$i" "$((2 * i))" >"$work/rates$i.xml"
done

# Each writer counts its failed commands into $work/NAME.failed; messages go to $work/NAME.err.
run_writer() { # name, function, its words after the round's number
    local failed=0 i
    for i in $(seq "$writes"); do "$2" "$i" "${@:3}" 2>>"$work/$1.err" || failed=$((failed + 1)); done
    echo "$failed" >"$work/$1.failed"
}
# Settings writer w writes w*1000+i to its own value and to the shared one.
settings_round() { # round, w
    settings set Wanderkit\\hostile "writer$2" $(($2 * 1000 + $1)) &&
        settings set Wanderkit\\hostile shared $(($2 * 1000 + $1))
}
# A favourites writer adds its city and removes it again, and adds it once more in its last round.
favourite_round() { # round, city:country
    wk favourites add "$2" >/dev/null || return 1
    [ "$1" -eq "$writes" ] || wk favourites remove "${2%%:*}" >/dev/null
}
forecast_round() { wk forecast import "$work/forecast$1.json" --favourite Paris >/dev/null; }
rates_round() { wk rates import "$work/rates$1.xml" >/dev/null; }

# The reader lists and reads until the writers are done; it counts the rounds in which a read failed.
reader() {
    local failed=0 value
    while [ ! -e "$work/done" ]; do
        { settings >/dev/null && value=$(settings get Wanderkit\\hostile shared) && [[ "$value" =~ ^[0-9]+$ ]] &&
            wk favourites >/dev/null && wk rates >/dev/null; } 2>>"$work/reader.err" || failed=$((failed + 1))
    done
    echo "$failed" >"$work/reader.failed"
}

started=$(date +%s%N)
run_writer settings1 settings_round 1 &
run_writer settings2 settings_round 2 &
run_writer favourites1 favourite_round Coro:Venezuela &
run_writer favourites2 favourite_round Leiria:Portugal &
run_writer forecast forecast_round &
run_writer rates rates_round &
writers=$(jobs -p | grep -vx "$program_pid")
reader &
# shellcheck disable=SC2086 # the writers' ids are words
wait $writers
touch "$work/done"
wait "$!"
# 4 settings writes, 2 favourites writes (one fewer in the last round), a forecast and rates a round.
echo "$((10 * writes - 2)) writes by six processes in $((($(date +%s%N) - started) / 1000000)) ms"

for name in settings1 settings2 favourites1 favourites2 forecast rates reader; do
    check "$name: every one of its commands succeeds" 0 "$(cat "$work/$name.failed")"
done
check "each settings writer's last value is read back" "$((1000 + writes)) $((2000 + writes))" \
    "$(settings get Wanderkit\\hostile writer1) $(settings get Wanderkit\\hostile writer2)"
shared=$(settings get Wanderkit\\hostile shared)
check "the shared setting ($shared) is a writer's last write" yes \
    "$([ "$shared" = $((1000 + writes)) ] || [ "$shared" = $((2000 + writes)) ] && echo yes)"
favourites=$(wk favourites)
check "each favourites writer's city is there once; Paris holds the last forecast" \
    "1 1 Paris	2988507	19/06/$((2000 + writes))	France" \
    "$(grep -c "^Coro	" <<<"$favourites") $(grep -c "^Leiria	" <<<"$favourites") $(grep "^Paris	" <<<"$favourites")"
# The last file alone, imported into a copy of the state, gives the same rates.
cp -r "$state" "$work/reference"
state="$work/reference" wk rates import "$work/rates$writes.xml" >/dev/null
check "the rates are the last file's" "$(state="$work/reference" wk rates)" "$(wk rates)"
check "no command met a locked database" 0 "$(cat "$work"/*.err | grep -ci "locked")"
kill "$program_pid"
check "the program keeps running throughout" 0 $?
wait "$program_pid" 2>/dev/null
finish
