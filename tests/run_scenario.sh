#!/bin/bash
# run_scenario.sh PROGRAM SCRIPT DATA SCRATCH: plays one robot script.
#
# It runs in a fresh copy of the data, so that a scenario may change and delete files. A first lines'
# comment "# args: --seed 3 show.kvs" adds arguments.
set -euo pipefail
program=$1 script=$2 data=$3 scratch=$4

rm -rf "$scratch"
mkdir -p "$scratch/app"
cp -r "$data" "$scratch/data"
cd "$scratch/data"

arguments=()
line=$(sed -n 's/^# args: //p' "$script" | head -n 1)
if [[ -n $line ]]; then
    read -r -a arguments <<<"$line"
fi
# The default clock and seed come first, so that a scenario can have its own.
exec "$program" --robot "$script" --trace "$scratch/trace.jsonl" --app-folder "$scratch/app" \
    "${arguments[@]}"
