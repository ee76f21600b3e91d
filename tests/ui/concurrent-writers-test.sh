#!/usr/bin/env bash
# Writers at once: several `wanderkit settings set` processes write the same state while another
# process reads it and the program itself has it open. No command may fail (a write that waited too
# long for the lock exits 1), and a later read sees the last written values.
# WANDERKIT_WRITERS and WANDERKIT_WRITES set the processes and the writes per process (default 4 x 50).
set -u
program=$1
writers=${WANDERKIT_WRITERS:-4}
writes=${WANDERKIT_WRITES:-50}
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
state="$work/state"
failures=0
check() { # description, expected, actual
    if [ "$2" != "$3" ]; then
        echo "FAIL: $1: expected $2, got $3"
        failures=$((failures + 1))
    else
        echo "ok: $1"
    fi
}
settings() { "$program" settings "$@" --state-dir "$state"; }

settings set Wanderkit\\hostile shared 0 >/dev/null
check "the first write creates the state" 0 $?
# The program holds its own connections to the same files throughout.
"$program" --state-dir "$state" >"$work/program.log" 2>&1 &
program_pid=$!

# Writer w writes w*1000+1 .. w*1000+writes, in order, to its own value and to the shared one.
writer() {
    local w=$1 failed=0 i
    for i in $(seq "$writes"); do
        settings set Wanderkit\\hostile "writer$w" $((w * 1000 + i)) 2>>"$work/writer$w.err" || failed=$((failed + 1))
        settings set Wanderkit\\hostile shared $((w * 1000 + i)) 2>>"$work/writer$w.err" || failed=$((failed + 1))
    done
    echo "$failed" >"$work/writer$w.failed"
}
# The reader lists and reads until the writers are done; each read must succeed with a written number.
reader() {
    local failed=0 value
    while [ ! -e "$work/done" ]; do
        settings >/dev/null 2>>"$work/reader.err" || failed=$((failed + 1))
        value=$(settings get Wanderkit\\hostile shared 2>>"$work/reader.err") || failed=$((failed + 1))
        [[ "$value" =~ ^[0-9]+$ ]] || failed=$((failed + 1))
    done
    echo "$failed" >"$work/reader.failed"
}

reader &
reader_pid=$!
pids=()
for w in $(seq "$writers"); do
    writer "$w" &
    pids+=($!)
done
for pid in "${pids[@]}"; do wait "$pid"; done
touch "$work/done"
wait "$reader_pid"

for w in $(seq "$writers"); do
    check "writer $w: every one of its $((2 * writes)) writes succeeds" 0 "$(cat "$work/writer$w.failed")"
    check "writer $w: a later read sees its last value" $((w * 1000 + writes)) "$(settings get Wanderkit\\hostile "writer$w")"
done
check "the reader: every read succeeds" 0 "$(cat "$work/reader.failed")"
# The write committed last is some writer's last write.
shared=$(settings get Wanderkit\\hostile shared)
last=no
for w in $(seq "$writers"); do [ "$shared" = $((w * 1000 + writes)) ] && last=yes; done
check "the shared value ($shared) is a writer's last write" yes "$last"
check "no command met a locked database" 0 "$(cat "$work"/*.err | grep -ci "locked")"
kill -0 "$program_pid" 2>/dev/null
check "the program keeps running throughout" 0 $?
kill "$program_pid"
wait "$program_pid" 2>/dev/null

exit $((failures > 0))
