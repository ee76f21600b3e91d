#!/bin/sh
# Checks the shipped data: default positions, daylight-saving agreement with tzdata, and the tests.
set -eu
TOOLS=$(cd "$(dirname "$0")" && pwd)
/usr/bin/python3 "$TOOLS/check-positions.py"
/usr/bin/python3 "$TOOLS/check-dst.py"
cd "$TOOLS" && /usr/bin/python3 -m unittest discover -s tests -t .
