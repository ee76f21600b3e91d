#!/usr/bin/env bash
# Installs the pinned npm sources and rewrites tests/reference/dialing-sources.tsv from them and
# from Debian's tzdata. Running it again on the same versions gives the same file.
set -euo pipefail
cd "$(dirname "$0")"
npm ci --no-audit --no-fund
/usr/bin/python3 extract-dialing-sources.py "$@"
