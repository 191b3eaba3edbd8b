#!/bin/bash
# Without a display the program says so and ends; it does not crash.
set -euo pipefail

mkdir -p "$PARAPICO_SCRATCH"
status=0
env -u DISPLAY PARAPICO_HOME="$PARAPICO_SCRATCH/home" "$PARAPICO" \
    >"$PARAPICO_SCRATCH/output" 2>&1 || status=$?
if [[ $status -ne 1 ]] || ! grep -q 'no display was found' "$PARAPICO_SCRATCH/output"; then
    echo "failed: status $status" >&2
    cat "$PARAPICO_SCRATCH/output" >&2
    exit 1
fi
