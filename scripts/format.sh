#!/bin/bash
# format.sh [--check]: lays out every C++ source, or only says which are not laid out.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t sources < <(find src tests fuzz bench demo \( -name '*.cpp' -o -name '*.h' \) | sort)
if [[ ${#sources[@]} -eq 0 ]]; then exit 0; fi
if [[ ${1:-} == --check ]]; then
    exec clang-format --dry-run -Werror "${sources[@]}"
fi
exec clang-format -i "${sources[@]}"
