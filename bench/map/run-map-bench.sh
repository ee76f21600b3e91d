#!/usr/bin/env bash
# `wanderkit map out.png --size 1920x1080` as a whole process, against Debian's xplanet drawing the same
# day/night rectangular map of the same instant at the same size to PNG, run alternately N times each
# (default 15). Prints the medians of wall-clock and CPU time; the targets are a wanderkit median of at
# most 150 ms and xplanet at least 4 times slower. xplanet is installed here when missing, for this
# comparison only. Usage: bench/map/run-map-bench.sh BUILD_DIR [RUNS]
set -euo pipefail
build=${1:?build folder}
runs=${2:-15}
if ! command -v xplanet >/dev/null; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends xplanet xplanet-images >/dev/null
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR="$work/runtime" TZ=UTC
mkdir -m 700 "$XDG_RUNTIME_DIR"

# Noon in Aalborg, the default home city, on 21 June 2026: 10:00 UTC.
wanderkit=("$build/bin/wanderkit" --state-dir "$work/state" --now "2026-06-21 12:00:00" map "$work/wanderkit.png"
    --size 1920x1080)
xplanet=(xplanet -body earth -projection rectangular -geometry 1920x1080 -date 20260621.100000 -num_times 1
    -output "$work/xplanet.png")

timed() { # file, command...: appends "wall user system" in seconds
    local file=$1
    shift
    local TIMEFORMAT='%R %U %S'
    { time "$@" >/dev/null 2>&1; } 2>>"$file"
}
median() { # column of a times file, as milliseconds
    awk -v c="$2" '{ print $c * 1000 }' "$1" | sort -n | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) }'
}
cpu_median() {
    awk '{ print ($2 + $3) * 1000 }' "$1" | sort -n | awk '{ v[NR] = $1 } END { print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2) }'
}

# The first start fills the stores; the timed runs are the everyday ones.
"${wanderkit[@]}" >/dev/null
for _ in $(seq "$runs"); do
    timed "$work/wanderkit.times" "${wanderkit[@]}"
    timed "$work/xplanet.times" "${xplanet[@]}"
done
awk -v ww="$(median "$work/wanderkit.times" 1)" -v wc="$(cpu_median "$work/wanderkit.times")" \
    -v xw="$(median "$work/xplanet.times" 1)" -v xc="$(cpu_median "$work/xplanet.times")" -v n="$runs" \
    -v ws="$(stat -c %s "$work/wanderkit.png")" -v xs="$(stat -c %s "$work/xplanet.png")" 'BEGIN {
    printf "1920x1080 day/night map to PNG, median of %d alternating runs each\n", n
    printf "wanderkit map: %6.1f ms wall, %6.1f ms CPU, %d bytes\n", ww, wc, ws
    printf "xplanet:       %6.1f ms wall, %6.1f ms CPU, %d bytes\n", xw, xc, xs
    printf "xplanet / wanderkit: %.1f x wall, %.1f x CPU (target at least 4); wanderkit wall target at most 150 ms\n", xw / ww, xc / wc
    exit (ww > 150 || xw / ww < 4)
}'
