#!/bin/sh
# Regenerates every shipped data file under resources/device from the pinned public sources.
# Installs what is missing: Debian packages (tzdata at least MIN_TZDATA) and the npm sources.
set -eu

TOOLS=$(cd "$(dirname "$0")" && pwd)
MIN_TZDATA=2026f
PACKAGES="python3 python3-pil tzdata iso-codes xplanet-images"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

missing=""
for package in $PACKAGES; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
done
command -v npm >/dev/null || missing="$missing npm"
tzdata=$(sed -n '1s/^# version //p' /usr/share/zoneinfo/tzdata.zi 2>/dev/null || true)
if [ -n "$missing" ] || [ "$(printf '%s\n%s\n' "$MIN_TZDATA" "$tzdata" | sort | head -n1)" != "$MIN_TZDATA" ]; then
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $PACKAGES $missing
fi

(cd "$TOOLS" && npm ci --ignore-scripts --no-audit --no-fund --loglevel=error)
cd "$TOOLS" && /usr/bin/python3 -m wkdata.generate "$@"
