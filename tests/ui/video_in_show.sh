#!/bin/bash
# A show with a video between two pictures: the video's pictures are seen in the middle of the
# screen, and when it has ended the next slide comes by itself.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

scripts=$(cd "$(dirname "$0")" && pwd)
shows=$PARAPICO_SCRATCH.shows
rm -rf "$shows"
mkdir -p "$shows"
cp "$PARAPICO_DATA/a.png" "$PARAPICO_DATA/b.png" "$shows"
"$scripts/make_video.py" "$shows/clip.avi"
python3 - "$scripts/../scenarios" "$shows" <<'PYTHON'
import pathlib, sys
sys.path.insert(0, sys.argv[1])
import make_data
slides = ["a.png", "clip.avi", "b.png"]
pathlib.Path(sys.argv[2], "clip.kvs").write_bytes(
    make_data.document(make_data.lines_of_show(slides, interval=8000)))
PYTHON

# The middle of the screen, counted from the main window.
middle=(540 452)

OpenShow() {
    StartProgram
    WaitForWindow 'Win Ver.9.10'
    MoveWindow 100 60
    Seen 'the menu' xdotool key --window "$window" alt+f
    xdotool key o
    WaitForDialog
    xdotool type --delay 5 "$shows/clip.kvs"
    xdotool key Return
    WaitForWindow 'clip.kvs'
    Click 45 545    # START
    WaitForColor 420 250 '#FF0000' 'the first picture is red'
    WaitForColor "${middle[@]}" '#0000FF' 'the video begins blue'
}

OpenShow
import -window root "$shows/playing.png"
WaitForColor "${middle[@]}" '#FFFF00' 'the video becomes yellow'
WaitForColor 420 250 '#00FF00' 'the picture after the video is green'
CloseProgram

echo "the video was seen, and the show went on"
