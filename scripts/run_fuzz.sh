#!/bin/bash
# run_fuzz.sh [SECONDS]: builds every fuzz target with clang and runs each over its corpus for a
# bounded time (default 20 s). What makes one fail is left in build/fuzz/findings.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-20}

shopt -s nullglob
targets=(fuzz/*_fuzz.cpp)
if [[ ${#targets[@]} -eq 0 ]]; then
    echo "no fuzz targets"
    exit 0
fi
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
mkdir -p build/fuzz/findings
for source in "${targets[@]}"; do
    name=$(basename "$source" .cpp)
    corpus=fuzz/corpus/${name%_fuzz}
    # New inputs go to a folder of the build tree: the stored corpus stays as it is.
    found=build/fuzz/corpus/$name
    mkdir -p "$corpus" "$found"
    echo "== $name, $seconds s"
    QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 "build/fuzz/fuzz/$name" \
        -max_total_time="$seconds" -timeout=30 -rss_limit_mb=2048 -max_len=65536 -verbosity=0 \
        -print_final_stats=1 -artifact_prefix=build/fuzz/findings/"$name"- "$found" "$corpus"
done
