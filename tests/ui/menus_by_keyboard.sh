#!/bin/bash
# A person without a mouse: opens menus with Alt and letters, changes settings, hears the notes,
# fills in a box, and plays a show by keys.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

Keys() {
    local key
    for key in "$@"; do
        xdotool key "$key"
        sleep 0.4
    done
}

Shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
Gone() { ! Shown "$1"; }
# The keys that follow are for the box, however late it takes the focus by itself.
ExpectBox() {
    WaitFor "a box titled $1" Shown "$1"
    xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$1" | head -n 1)" || true
    sleep 0.4
}
ExpectGone() { WaitFor "the box $1 goes" Gone "$1"; }
InTrace() { grep -qF -- "$1" "$trace"; }

# The trace tells what the settings have become.
trace=$PARAPICO_SCRATCH/trace.jsonl
StartProgram --trace "$trace"
WaitForWindow 'Win Ver.9.10'
main=$window
MoveWindow 100 60

# Settings, time: Alt+S, J. Out of range first.
Keys alt+s j
ExpectBox 'スライド間隔'
xdotool type --delay 20 "99"
Keys Return
ExpectBox 'ｽﾗｲﾄﾞ間隔'
Keys Return
ExpectGone 'ｽﾗｲﾄﾞ間隔'
xdotool windowfocus --sync "$main" || true
Keys alt+s j
ExpectBox 'スライド間隔'
xdotool type --delay 20 "2"
Keys Return
ExpectGone 'スライド間隔'

# Settings, repeat, あり by the arrows: a note.
xdotool windowfocus --sync "$main" || true
Keys alt+s k Return
ExpectBox '繰り返し'
Keys Return
ExpectGone '繰り返し'
WaitFor 'the note is traced' InTrace '"title":"繰り返し"'

# Open with Ctrl+O, play and pause with the space bar, move with the arrows.
xdotool windowfocus --sync "$main" || true
Keys ctrl+o
WaitForDialog
xdotool type --delay 5 "$PARAPICO_DATA/five_slow.kvs"
xdotool key Return
WaitForWindow 'five_slow.kvs'
Keys space
WaitForColor 420 250 '#FF0000' 'space starts the show with the red picture'
WaitForColor 420 250 '#00FF00' 'the second picture is green'
Keys space
sleep 9
ExpectColor 420 250 '#00FF00' 'space pauses it'
Keys Left
WaitForColor 420 250 '#FF0000' 'the left arrow goes back'
Keys Right
WaitForColor 420 250 '#00FF00' 'the right arrow goes on'

# The same by the menu: Alt+R, STOP.
Keys alt+r Down Return
WaitForColor 420 150 '#000000' 'STOP in the menu empties the preview'
Keys ctrl+q
for ((try = 0; try < limit; ++try)); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.2
done
! kill -0 "$program" 2>/dev/null || Fail 'Ctrl+Q ends the program'
trap - EXIT
echo "the menus and keys did what they say"
