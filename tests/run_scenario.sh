#!/bin/bash
# run_scenario.sh PROGRAM SCRIPT DATA SCRATCH [OPTION VALUE]...: plays one robot script, with these
# options of the robot before its own.
#
# It runs in a fresh copy of the data, so that a scenario may change and delete files. The script says
# itself what it expects. Comments at its beginning say how the program is started:
#   # args: --seed 3 --now "2026-01-01 23:59:50" show.kvs    more arguments
#   # app: uautst.dat b.wav=vue1.wav                         data that the program folder begins with,
#                                                            under another name after '='
#   # first: other.robot                                     a script of an earlier run of the program
#   # moved: a=b c=d                                         what is called otherwise after the earlier run
#   # held: yes                                              another instance holds the program folder
#   # exit: 2                                                the robot's status for a script at fault (2: refused
#                                                            before anything happens)
#   # unheard: Form1.Command2                               acts on it may reach no handler
set -euo pipefail
program=$1 script=$2 data=$3 scratch=$4
shift 4

rm -rf "$scratch"
mkdir -p "$scratch/app"
cp -r "$data" "$scratch/data"
cd "$scratch/data"

declare -A said=([args]='' [app]='' [first]='' [moved]='' [held]='' [exit]='' [unheard]='')
while IFS= read -r line; do
    if [[ $line =~ ^\#\ ([a-z]+):\ (.*)$ ]]; then
        if [[ ! -v said[${BASH_REMATCH[1]}] ]]; then
            echo "$script: nobody reads '# ${BASH_REMATCH[1]}:'" >&2
            exit 1
        fi
        said[${BASH_REMATCH[1]}]+=" ${BASH_REMATCH[2]} "  # several lines say more of it
    fi
done <"$script"

arguments=()
if [[ -n ${said[args]} ]]; then
    mapfile -t arguments < <(xargs -n 1 printf '%s\n' <<<"${said[args]}")
fi
trace=$scratch/trace.jsonl
for name in ${said[app]}; do cp "${name%%=*}" "$scratch/app/${name##*=}"; done
for name in ${said[first]}; do
    "$program" --robot "$(dirname "$script")/$name" --app-folder "$scratch/app" ||
        { echo "$script: the earlier run of $name failed" >&2; exit 1; }
done
for name in ${said[moved]}; do mv "${name%%=*}" "${name##*=}"; done
# Its own trace and folder come first: a scenario can have others.
run=("$program")
if [[ -n ${said[held]} ]]; then
    run=(env -u XDG_RUNTIME_DIR flock "$scratch/app/.parapico.lock" "$program")
fi
status=0
"${run[@]}" --robot "$script" --trace "$trace" --app-folder "$scratch/app" "$@" "${arguments[@]}" ||
    status=$?

failed=0
expected=${said[exit]:-0}
if [[ $status -ne $expected ]]; then
    echo "$script: exit status $status, expected $expected" >&2
    failed=1
fi
if [[ $status -eq 2 && -s $trace ]]; then
    echo "$script: something happened before it was refused" >&2
    failed=1
fi
# Acts that reach no handler are mistakes of the scenario, unless it names them.
while IFS= read -r line; do
    if [[ $line =~ \"event\":\"act\".*\"name\":\"([^\"]*)\",\"unheard\":true &&
        ${said[unheard]} != *" ${BASH_REMATCH[1]} "* ]]; then
        echo "$script: nobody heard the act on ${BASH_REMATCH[1]}" >&2
        failed=1
    fi
done <"$trace"
exit $failed
