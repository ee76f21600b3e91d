# shellcheck shell=bash
# Shared set-up of the process test scripts, sourced by each: a work folder removed at the end (with any
# background job still running), a private runtime folder for the single-instance socket, and check().
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
failures=0

check() { # description, expected, actual
    if [ "$2" = "$3" ]; then echo "ok: $1"; else echo "FAIL: $1: expected $2, got $3" && failures=$((failures + 1)); fi
}

# Runs a command with its output in $work/out and $work/err, and prints its exit status.
status() { "$@" >"$work/out" 2>"$work/err"; echo $?; }
# "yes" when $work/err holds every one of the texts.
says() { for text; do grep -qF -- "$text" "$work/err" || { echo no && return; }; done && echo yes; }

# Ends the script: 0 when every check passed.
finish() { echo "$failures failed" && exit $((failures > 0)); }

# A rates file as the European Central Bank publishes it: the dollar's rate and one rate for every other
# currency of a currency list ("N\nCODE_Name_rate#..."), all per euro.
ecb_file() { # currency list, date, dollars a euro, units of every other currency a euro
    echo "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
    echo "<gesmes:Envelope xmlns:gesmes=\"http://www.gesmes.org/xml/2002-08-01\"" \
        "xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\">"
    echo "<gesmes:subject>Reference rates</gesmes:subject>"
    echo "<gesmes:Sender><gesmes:name>European Central Bank</gesmes:name></gesmes:Sender>"
    echo "<Cube><Cube time='$2'><Cube currency='USD' rate='$3'/>"
    tr '#' '\n' <"$1" | sed 1d | cut -d_ -f1 | grep -vx 'USD\|EUR\|' | sed "s/.*/<Cube currency='&' rate='$4'\/>/"
    echo "</Cube></Cube></gesmes:Envelope>"
}
