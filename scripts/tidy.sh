#!/bin/bash
# tidy.sh [BUILD]: clang-tidy with the list of .clang-tidy over the sources of a configured build
# (default build/dev).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/dev}
# The compile commands belong to g++ and name options that clang does not know.
find src -name '*.cpp' -print0 | sort -z |
    xargs -0 -r -n 4 -P "$(nproc)" clang-tidy -p "$build" --quiet \
        --extra-arg=-Wno-unknown-warning-option 2>&1 |
    { grep -v -E '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' || true; }
# The exit status is that of clang-tidy (pipefail), not of the filter.
