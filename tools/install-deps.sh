#!/usr/bin/env bash
# Installs the Debian 12 packages that Tombi needs to build, run and test.
# Runs as root, or through sudo for anyone else.
set -euo pipefail

packages=(
    cmake ninja-build g++ pkg-config
    qt6-base-dev libqt6opengl6-dev qt6-svg-dev qt6-charts-dev qt6-translations-l10n libgl1-mesa-dev libcurl4-openssl-dev
    libbenchmark-dev
    xvfb xauth poppler-utils python3 python3-pyftpdlib
)

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
else
    as_root=(sudo)
fi

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
fi
