#!/bin/bash
# run_scenario.sh PROGRAM SCRIPT DATA SCRATCH [OPTION VALUE]...: plays one robot script, with these
# options of the robot ahead of its own.
#
# It runs in a fresh copy of the data, so that a scenario may change and delete files. Comments of
# the script say what else is wanted:
#   # args: --seed 3 --now "2026-01-01 23:59:50" show.kvs    more arguments
#   # app: uautst.dat b.wav=vue1.wav                         data that the program folder begins with,
#                                                            under another name behind '='
#   # first: other.robot                                     a script of an earlier run of the program
#   # held: yes                                              another instance holds the program folder
#   # exit: 1                                                the exit status, otherwise 0
#   # trace: "t":3000,"event":"slide"                        a line of the trace holds this text
#   # no trace: "event":"message"                            no line of the trace holds it
#   # unheard: Form1.Command2                               acts on it may reach nobody
#   # slides: 0 a.png 3000 b.png                             all slides shown, each with its time
#   # sound: 4000 stop wav | close wav                       all commands to the sound device, those of
#                                                            one moment on one line, files without
#                                                            folders; repeated questions once, a fade's
#                                                            volumes not at all
set -euo pipefail
program=$1 script=$2 data=$3 scratch=$4
shift 4

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
for name in $(wanted app); do cp "${name%%=*}" "$scratch/app/${name##*=}"; done
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
"${run[@]}" --robot "$script" --trace "$trace" --app-folder "$scratch/app" "$@" "${arguments[@]}" ||
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
# Acts that nobody hears are mistakes of the scenario, unless it names them.
while IFS= read -r name; do
    grep -qxF -- "# unheard: $name" "$script" || complain "nobody heard the act on $name"
done < <(sed -nE 's/.*"event":"act",.*"name":"([^"]*)","unheard":true.*/\1/p' "$trace" | sort -u)
if grep -q '^# slides:' "$script"; then
    shown=$(sed -nE 's|^\{"t":([0-9.]+),"event":"slide",.*"path":"[^"]*/([^/"]*)".*|\1 \2|p' \
        "$trace" | paste -sd ' ')
    expected=$(wanted slides | paste -sd ' ')
    [[ $shown == "$expected" ]] || complain "shown: $shown"$'\n'"  expected: $expected"
fi
if grep -q '^# sound:' "$script"; then
    heard=$(sed -nE '
        s/^\{"t":([0-9.]+),"event":"mci","command":"(.*)","result":.*/\1 \2/p
        s/^\{"t":([0-9.]+),"event":"sndPlaySound","file":null,.*/\1 cancel/p
        s/^\{"t":([0-9.]+),"event":"sndPlaySound","file":"([^"]*)","flags":([0-9]+).*/\1 sound \2 \3/p
        ' "$trace" | sed -E 's/\\"/"/g; s|"[^"]*/|"|' | awk '
        { time = $1; sub(/^[^ ]+ /, ""); }
        /^setaudio/ && !/ 1000$/ { next }
        $0 == last && /^status/ { next }
        { last = $0; if (time == now) line = line " | " $0
          else { if (line != "") print line; line = time " " $0; now = time } }
        END { if (line != "") print line }')
    expected=$(wanted sound)
    [[ $heard == "$expected" ]] || complain "heard: $heard"$'\n'"  expected: $expected"
fi
exit $failed
