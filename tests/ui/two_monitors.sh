#!/bin/bash
# Two monitors of different size side by side: the full screen covers the one that the main window
# is on, to the pixel, and comes over when that one is unplugged. Then the same with the second
# monitor scaled.
set -euo pipefail
source "$(dirname "$0")/screen.sh"
picture=$PARAPICO_DATA/pattern.png  # 640x400

# ExpectCover X Y WIDTH HEIGHT: the picture in the middle of black, and nothing beyond.
ExpectCover() {
    local right=$(($1 + $3)) bottom=$(($2 + $4))
    ExpectScreen "$1" "$2" '#000000' 'the monitor is covered from its corner'
    ExpectScreen $((right - 1)) $((bottom - 1)) '#000000' 'the monitor is covered to its far corner'
    if [[ $1 -gt 0 ]]; then ExpectScreen $(($1 - 1)) "$2" "$ground" 'its neighbour is not'; fi
    if [[ $right -lt 2304 ]]; then ExpectScreen "$right" "$2" "$ground" 'its neighbour is not'; fi
    if [[ $bottom -lt 1024 ]]; then ExpectScreen "$1" "$bottom" "$ground" 'nor what lies below'; fi
}

# Parts of the one screen that the server has.
PlugLeft() {
    xrandr --setmonitor LEFT 1024/270x768/203+0+0 screen >"$PARAPICO_SCRATCH/xrandr" 2>&1
}
PlugRight() {
    xrandr --setmonitor RIGHT 1280/338x1024/270+1024+0 none >"$PARAPICO_SCRATCH/xrandr" 2>&1
}

# PlayOnBoth X Y START-X START-Y: for the second time the main window is moved there, into the second
# monitor; where START is in it.
PlayOnBoth() {
    StartProgram "$PARAPICO_DATA/still.kvs"
    WaitFor 'the show in the first monitor' StartedShowShows "$picture" 192 184
    ExpectCover 0 0 1024 768
    WaitForWindow '^パラピコ$'
    xdotool key Escape
    WaitForWindow 'still.kvs'
    MoveWindow "$1" "$2"
    Click "$3" "$4"
    WaitFor 'the show in the second monitor' StartedShowShows "$picture" 1344 312
    ExpectCover 1024 0 1280 1024
}

StartDisplay 2304x1024
PlugLeft
PlugRight
PlayOnBoth 1400 200 45 545
xrandr --delmonitor RIGHT
WaitFor 'the show where there is a monitor left' ScreenShows "$picture" 192 184
ExpectCover 0 0 1024 768
kill "$program"
wait "$program" 2>/dev/null || true

PlugRight
export QT_SCREEN_SCALE_FACTORS='1;1.5'
PlayOnBoth 1030 20 72 540
CloseProgram
echo "each monitor was covered as seen"
