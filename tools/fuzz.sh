#!/usr/bin/env bash
# Builds the fuzz targets of the file readers with clang, AddressSanitizer and UBSan, and runs
# each for a number of executions (default one million) starting from its corpus of odd files.
# Usage: tools/fuzz.sh [RUNS] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${1:-1000000}
shift || true

CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTOMBI_FUZZ=ON -DTOMBI_TESTS=OFF
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for f in tests/fuzz/Fuzz_*.cpp; do targets+=("$(basename "$f" .cpp)"); done
fi
cmake --build build-fuzz --target "${targets[@]}"

export ASAN_OPTIONS=detect_leaks=0
for t in "${targets[@]}"; do
    reader=${t#Fuzz_}
    work=build-fuzz/corpus-$reader
    mkdir -p "$work"
    cp -n tests/data/korpus/"$reader"/* "$work"/ 2>/dev/null || true
    echo "== $t: $runs runs"
    build-fuzz/tests/"$t" -runs="$runs" -max_len=70000 -print_final_stats=1 "$work" 2>&1 | tail -n 12
done
