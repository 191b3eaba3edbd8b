#!/bin/bash
# A person opens a show in the main window and plays it: clicks START, sees two different pictures,
# pauses, and goes back. Looks at the screen's pixels only.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

StartProgram
WaitForWindow 'Win Ver.9.10'
MoveWindow 100 60

# Alt+F, O: the file dialog takes the path by keyboard.
Seen 'the menu' xdotool key --window "$window" alt+f
xdotool key o
WaitForDialog
xdotool type --delay 5 "$PARAPICO_DATA/five_slow.kvs"
xdotool key Return
WaitForWindow 'five_slow.kvs'

Click 45 545    # START
WaitForColor 420 250 '#FF0000' 'the first picture is red'
WaitForColor 420 250 '#00FF00' 'the second picture is green'
playing=$(StartButton)
Click 124 545   # PAUSE
WaitFor 'a paused show' StartIsNot "$playing"
ExpectColor 420 250 '#00FF00' 'the picture stays'
Click 284 545   # previous
WaitForColor 420 250 '#FF0000' 'the picture before is red'
Click 204 545   # STOP
CloseProgram
echo "the show played as seen"
