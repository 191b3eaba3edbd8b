#!/bin/bash
# run_scenario.sh PROGRAM SCRIPT DATA SCRATCH: plays one robot script.
#
# It runs in a fresh copy of the data, so that a scenario may change and delete files. Comments of
# the script say what else is wanted:
#   # args: --seed 3 --now "2026-01-01 23:59:50" show.kvs    more arguments
#   # app: uautst.dat one.kvs                             data that the program folder begins with
#   # first: other.robot                                  a script of an earlier run of the program
#   # held: yes                                          another instance holds the program folder
#   # exit: 1                                                the exit status, otherwise 0
#   # trace: "t":3000,"event":"slide"                        a line of the trace holds this text
#   # no trace: "event":"message"                            no line of the trace holds it
#   # slides: 0 a.png 3000 b.png                             all slides shown, each with its time
set -euo pipefail
program=$1 script=$2 data=$3 scratch=$4

rm -rf "$scratch"
mkdir -p "$scratch/app"
cp -r "$data" "$scratch/data"
cd "$scratch/data"

wanted() { sed -n "s/^# $1: //p" "$script"; }

arguments=()
line=$(wanted args | head -n 1)
if [[ -n $line ]]; then
    mapfile -t arguments < <(xargs -n 1 printf '%s\n' <<<"$line")
fi
trace=$scratch/trace.jsonl
for name in $(wanted app); do cp "$name" "$scratch/app/"; done
for name in $(wanted first); do
    "$program" --robot "$(dirname "$script")/$name" --app-folder "$scratch/app" ||
        { echo "$script: the earlier run of $name failed" >&2; exit 1; }
done
status=0
# Its own trace and folder come first: a scenario can have others.
run=("$program")
if [[ -n $(wanted held) ]]; then
    run=(env -u XDG_RUNTIME_DIR flock "$scratch/app/.parapico.lock" "$program")
fi
"${run[@]}" --robot "$script" --trace "$trace" --app-folder "$scratch/app" "${arguments[@]}" ||
    status=$?

failed=0
complain() {
    echo "$script: $*" >&2
    failed=1
}
expected=$(wanted exit)
[[ $status -eq ${expected:-0} ]] || complain "exit status $status, expected ${expected:-0}"
while IFS= read -r text; do
    grep -qF -- "$text" "$trace" || complain "not in the trace: $text"
done < <(wanted trace)
while IFS= read -r text; do
    ! grep -qF -- "$text" "$trace" || complain "in the trace: $text"
done < <(wanted 'no trace')
if grep -q '^# slides:' "$script"; then
    shown=$(sed -nE 's|^\{"t":([0-9.]+),"event":"slide",.*"path":"[^"]*/([^/"]*)".*|\1 \2|p' \
        "$trace" | paste -sd ' ')
    expected=$(wanted slides | paste -sd ' ')
    [[ $shown == "$expected" ]] || complain "shown: $shown"$'\n'"  expected: $expected"
fi
exit $failed
