#!/usr/bin/env bash
# Installs what is needed, builds Tombi with the draw archives it ships, and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build
exec build/src/tombi "$@"
