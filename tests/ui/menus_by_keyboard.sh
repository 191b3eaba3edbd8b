#!/bin/bash
# A person without a mouse: opens menus with Alt and letters, changes settings, hears the notes,
# fills in a box, and plays a show by keys.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

# Menus, one after the other; what follows them is the entry's.
Menus() {
    local key
    for key in "$@"; do
        Seen "the menu of $key" xdotool key "$key"
    done
}

Shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
Gone() { ! Shown "$1"; }
# The keys that follow are for the box, however late it takes the focus by itself.
ExpectBox() {
    WaitFor "a box titled $1" Shown "$1"
    xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$1" | head -n 1)" || true
    WaitForStill "the whole box $1"
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
Menus alt+s
xdotool key j
ExpectBox 'スライド間隔'
xdotool type --delay 20 "99"
xdotool key Return
ExpectBox 'ｽﾗｲﾄﾞ間隔'
xdotool key Return
ExpectGone 'ｽﾗｲﾄﾞ間隔'
xdotool windowfocus --sync "$main" || true
Menus alt+s
xdotool key j
ExpectBox 'スライド間隔'
xdotool type --delay 20 "2"
xdotool key Return
ExpectGone 'スライド間隔'

# Settings, repeat, あり by the arrows: a note.
xdotool windowfocus --sync "$main" || true
Menus alt+s k
xdotool key Return
ExpectBox '繰り返し'
xdotool key Return
ExpectGone '繰り返し'
WaitFor 'the note is traced' InTrace '"title":"繰り返し"'

# Open with Ctrl+O, play and pause with the space bar, move with the arrows.
xdotool windowfocus --sync "$main" || true
xdotool key ctrl+o
WaitForDialog
xdotool type --delay 5 "$PARAPICO_DATA/five_slow.kvs"
xdotool key Return
WaitForWindow 'five_slow.kvs'
xdotool key space
WaitForColor 420 250 '#FF0000' 'space starts the show with the red picture'
WaitForColor 420 250 '#00FF00' 'the second picture is green'
playing=$(StartButton)
xdotool key space
WaitFor 'space pauses it' StartIsNot "$playing"
ExpectColor 420 250 '#00FF00' 'the picture stays'
xdotool key Left
WaitForColor 420 250 '#FF0000' 'the left arrow goes back'
xdotool key Right
WaitForColor 420 250 '#00FF00' 'the right arrow goes on'

# The same by the menu: Alt+R, STOP.
Menus alt+r Down
xdotool key Return
WaitForColor 420 150 '#000000' 'STOP in the menu empties the preview'
xdotool key ctrl+q
WaitForEnd 'Ctrl+Q ends the program'
trap - EXIT
echo "the menus and keys did what they say"
