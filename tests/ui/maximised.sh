#!/bin/bash
# A maximised window under a window manager: it starts so, New leaves it where it is, and it goes back
# to the size that it had before; what is maximised by hand keeps its other size for the next start.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

Geometry() {
    local X Y WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    echo "$WIDTH $HEIGHT ${1:+$X $Y}"
}
HasSize() { [[ $(Geometry) == "$1 $2 " ]]; }
Fills() { [[ $(Geometry) == "1280 "* ]]; }
# The window manager's own menu: x for Maximize, e for Restore.
FromWindowMenu() {
    xdotool windowfocus --sync "$window"
    Seen 'the menu of the window' xdotool key alt+space
    xdotool key "$1"
}
Maximise() { FromWindowMenu x; }
Restore() { FromWindowMenu e; }
Kept() { tr -d '\r\n' <"$PARAPICO_SCRATCH/home/window.dat"; }
Start() {
    PARAPICO_HOME="$PARAPICO_SCRATCH/home" "$PARAPICO" >"$PARAPICO_SCRATCH/output" 2>&1 &
    program=$!
    WaitForWindow 'Win Ver.9.10'
}
Restart() {
    xdotool key ctrl+q
    WaitForEnd 'the program ends'
    [[ $(Kept) == "$1" ]] || Fail "kept: $(Kept), expected $1"
    Start
}

StartDisplay 1280x1024
openbox >/dev/null 2>&1 &
HasDesktops() { xdotool get_num_desktops >/dev/null 2>&1; }
Until HasDesktops

rm -rf "$PARAPICO_SCRATCH/home"
mkdir -p "$PARAPICO_SCRATCH/home"
printf 'window1\r\n 900 \r\n 640 \r\n 0 \r\n' >"$PARAPICO_SCRATCH/home/window.dat"
Start
trap 'kill "$program" "$server" 2>/dev/null || true' EXIT
WaitFor 'the size of last time' HasSize 900 640
Maximise
WaitFor 'maximised by hand' Fills

Restart 'window1 900  640  2 '
WaitFor 'a maximised start' Fills
place=$(Geometry whole)
xdotool key ctrl+n
WaitForWindow '新規作成'
xdotool key Return
WaitForWindow 'Win Ver.9.10'
WaitForStill 'the window without the box'
[[ $(Geometry whole) == "$place" ]] || Fail "New moved the window from $place to $(Geometry whole)"
Restore
WaitFor 'the size from before' HasSize 900 640
Maximise
WaitFor 'maximised again' Fills

Restart 'window1 900  640  2 '
CloseProgram
echo "the maximised window kept its place and its other size"
