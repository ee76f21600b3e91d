#!/usr/bin/env bash
# shellcheck disable=SC2086 # the extra readers, and a reader's command, are words
# Kills mid-write: SIGKILL at a random moment of each write path (a setting written, a favourite added or
# removed, a forecast or rates imported, the first start's load). After every kill the state must open (its
# readers exit 0 and say nothing on standard error) and show all as before the write or all as after, never a
# mix. Usage: kill-writes-test.sh PROGRAM DEVICE_ROOT [--long]; kills per path: 50, 500 with --long, or
# WANDERKIT_KILLS. The paths run side by side, each on its own state.
set -u
program=$1
device_root=$2
kills=${WANDERKIT_KILLS:-$([ "${3:-}" = --long ] && echo 500 || echo 50)}
# shellcheck source=../support/process-test.sh
. "$(dirname "$0")/../support/process-test.sh"
export QT_QPA_PLATFORM=offscreen TZ=UTC
now="2026-06-15 09:00:00"

wk() { "$program" --state-dir "$1" --device-root "$device_root" --now "$now" "${@:2}"; } # state folder, command...
# The bytes in a state's write-ahead logs: a write's log header and pages, from a process that has not
# closed the files (readers only open the logs). The last connection to close folds the logs into the
# database, so a state at rest has none.
wal_bytes() { cat "$1"/*-wal 2>/dev/null | wc -c; }
ms_now() { echo $(($(date +%s%N) / 1000000)); }

# What the readers show of a state, into $2; fails when a reader fails or prints a message. The first load
# is also read through the city and unit lists, which no other path changes.
readers=("settings" "favourites" "rates" "weather Paris")
snapshot() { # state folder, output file, extra readers...
    local reader
    for reader in "${readers[@]}" "${@:3}"; do
        echo "== $reader"
        wk "$1" $reader 2>"$2.err" && [ ! -s "$2.err" ] || return 1
    done >"$2"
}

# The inputs: two settings texts, two forecasts, two rates files over every shipped currency.
text_a=$(head -c 100000 /dev/zero | tr '\0' a)
text_b=$(head -c 100000 /dev/zero | tr '\0' b)
forecast_a=$(dirname "$0")/../../resources/tour/forecast.json
sed 's/T05:47/T06:12/g' "$forecast_a" >"$work/forecast-b.json"
ecb_file "$device_root/currs.lst" 2026-06-10 1.5 2 >"$work/rates-a.xml"
ecb_file "$device_root/currs.lst" 2026-06-12 1.25 4 >"$work/rates-b.xml"

# The state every write path but the first load starts from.
seed="$work/seed"
wk "$seed" settings set 'Wanderkit\kill' note "$text_a" --type string >/dev/null &&
    wk "$seed" favourites add Leiria:Portugal >/dev/null &&
    wk "$seed" forecast import "$forecast_a" --favourite Paris >/dev/null &&
    wk "$seed" rates import "$work/rates-a.xml" >/dev/null 2>&1
check "the seed state is written" 0 $?

# Kills `kills` runs of one write path and writes its figures; its failed checks go to $dir/failures.
kill_path() { # name, extra readers ("" for none), command...
    local name=$1 extra=$2 dir="$work/$1" loads="" started window pid moment status logged
    local inside=0 before=0 after=0 mixed=0
    shift 2
    [ "$name" = "first load" ] && loads=yes
    mkdir -p "$dir"
    fresh() { rm -rf "$dir/state" && { [ -n "$loads" ] || cp -r "$seed" "$dir/state"; }; }
    fresh && snapshot "$dir/state" "$dir/old" $extra
    echo $? >"$dir/failures"
    # The window of the kills: the median of three whole writes, and a quarter more.
    for _ in 1 2 3; do
        fresh && started=$(ms_now) && wk "$dir/state" "$@" >/dev/null 2>&1
        echo $(($(ms_now) - started))
    done >"$dir/ms"
    window=$(($(sort -n "$dir/ms" | sed -n 2p) * 5 / 4 + 1))
    snapshot "$dir/state" "$dir/new" $extra || echo 1 >>"$dir/failures"
    # The write must show; the readers complete a first load themselves, so it reads the same either way.
    [ -z "$loads" ] && cmp -s "$dir/old" "$dir/new" && echo 1 >>"$dir/failures"
    for _ in $(seq "$kills"); do
        fresh
        "$program" --state-dir "$dir/state" --device-root "$device_root" --now "$now" "$@" >/dev/null 2>&1 &
        pid=$!
        moment=$((RANDOM % window))
        sleep "$((moment / 1000)).$(printf %03d $((moment % 1000)))"
        kill -9 "$pid" 2>/dev/null
        { wait "$pid"; } 2>/dev/null # no "Killed" notice
        status=$?
        logged=$(wal_bytes "$dir/state")
            snapshot "$dir/state" "$dir/read" $extra || { echo "== a reader failed" && cat "$dir/read.err"; } >>"$dir/read"
        if cmp -s "$dir/read" "$dir/old"; then
            before=$((before + 1))
            [ "$status" -eq 137 ] && [ "$logged" -gt 0 ] && inside=$((inside + 1))
        elif cmp -s "$dir/read" "$dir/new"; then
            after=$((after + 1))
        else
            mixed=$((mixed + 1))
            [ -e "$dir/diagnosis" ] || diff "$dir/new" "$dir/read" | head -20 >"$dir/diagnosis"
        fi
    done
    echo "$mixed" >>"$dir/failures"
    # A kill that found the write's log begun and left the state as before landed inside the write.
    printf '%s: %d kills (window %d ms), %d inside the write; the state as before %d times, as after %d, neither %d\n' \
        "$name" "$kills" "$window" "$inside" "$before" "$after" "$mixed" >"$dir/figures"
}

started=$(ms_now)
kill_path "setting" "" settings set 'Wanderkit\kill' note "$text_b" --type string &
kill_path "favourite added" "" favourites add Coro:Venezuela &
kill_path "favourite removed" "" favourites remove Leiria &
kill_path "forecast import" "" forecast import "$work/forecast-b.json" --favourite Paris &
kill_path "rates import" "" rates import "$work/rates-b.xml" &
# The program's first start loads the stores; when it leaves, it empties the converters' amounts in one write.
kill_path "first load" "cities units" --exit-after-first-paint &
wait
for path in "setting" "favourite added" "favourite removed" "forecast import" "rates import" "first load"; do
    cat "$work/$path/figures"
    [ -e "$work/$path/diagnosis" ] && sed 's/^/  | /' "$work/$path/diagnosis"
    check "$path: the state opens and shows the old or the new whole after every kill" 0 \
        "$(awk '{ s += $1 } END { print s }' "$work/$path/failures")"
done
echo "$((6 * kills)) kills in $((($(ms_now) - started) / 1000)) s"
finish
