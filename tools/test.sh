#!/usr/bin/env bash
# Installs what is needed, builds Tombi and its tests, and runs every test with ctest.
# With --sanitize the build uses AddressSanitizer and UBSan (in build-asan).
set -euo pipefail
cd "$(dirname "$0")/.."

build=build
options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
if [ "${1:-}" = "--sanitize" ]; then
    build=build-asan
    options+=(-DTOMBI_SANITIZE=ON)
    export ASAN_OPTIONS=detect_leaks=0
fi

tools/install-deps.sh
cmake -S . -B "$build" -G Ninja "${options[@]}"
cmake --build "$build"
ctest --test-dir "$build" --output-on-failure --timeout 600 -j2
