#!/usr/bin/env bash
# Installs the Debian packages Wanderkit needs to build, test and run, when any is missing.
set -euo pipefail

packages=(
    build-essential cmake pkg-config
    libsqlite3-dev nlohmann-json3-dev libexpat1-dev
    qt6-base-dev qt6-wayland libgl-dev libegl-dev libxkbcommon-dev zlib1g-dev
    libgtest-dev libbenchmark-dev
    fonts-liberation2 fontconfig
    tzdata python3 iso-codes
    help2man lintian desktop-file-utils appstream
    clang-14 libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Installing ${missing[*]} needs root or sudo." >&2; exit 1; }
    sudo="sudo"
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
