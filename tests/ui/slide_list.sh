#!/bin/bash
# A person makes a show with the mouse: opens the slide list, goes to a folder, adds its pictures by
# clicks, drags one to another place, takes that back and does it again, leaves rows out by a word,
# saves, presses OK, and plays what was made.
set -euo pipefail
source "$(dirname "$0")/screen.sh"

# A home with one folder of three pictures.
person=$PARAPICO_SCRATCH/person
rm -rf "$person"
mkdir -p "$person/show"
convert -size 320x240 'xc:#FF0000' "$person/show/1.png"
convert -size 320x240 'xc:#00FF00' "$person/show/2.png"
convert -size 320x240 'xc:#0000FF' "$person/show/3.png"
export HOME=$person XDG_CACHE_HOME=$PARAPICO_SCRATCH/cache

StartProgram
WaitForWindow 'Win Ver.9.10'
main=$window
MoveWindow 100 60
Click 621 545   # the slide list
WaitForWindow 'スライドリスト'
xdotool windowsize --sync "$window" 1100 740
MoveWindow 20 20

# Middles of the thumbnails in the list's first rows.
column=443
first=150 second=212 third=274

# The tree stands at home; the row below it is the folder.
Seen 'the folder' Click 100 218
Seen 'the first file' Click 60 270
WaitForColor $column $first '#FF0000' 'the first row is red'
Click 60 292
WaitForColor $column $second '#00FF00' 'the second row is green'
Click 60 314
WaitForColor $column $third '#0000FF' 'the third row is blue'

# The third row is dragged in front of the first.
DragRow() {
    xdotool mousemove --window "$window" 600 $third mousedown 1
    local y
    for y in $((third - 10)) $second $((first + 10)) $((first - 15)); do
        xdotool mousemove --sync --window "$window" 600 "$y"
    done
}
Seen 'where the row goes' DragRow
xdotool mouseup 1
WaitForColor $column $first '#0000FF' 'the blue row is the first'
ExpectColor $column $second '#FF0000' 'the red row follows'
Click 475 50    # undo
WaitForColor $column $first '#FF0000' 'the red row is the first again'
ExpectColor $column $third '#0000FF' 'the blue row is the last again'
Click 549 50    # redo
WaitForColor $column $first '#0000FF' 'the blue row is the first once more'

# Keys for text are the filter's while it has the keyboard.
xdotool key ctrl+f
xdotool type --delay 20 '2.pn'
WaitForColor $column $first '#00FF00' 'the green row alone is seen'
xdotool key ctrl+a Delete
WaitForColor $column $first '#0000FF' 'all rows are there again'
ExpectColor $column $third '#00FF00' 'the green one, too'

# The menu key brings the list's menu.
Click 600 $first
Seen 'the menu of the list' xdotool key Menu
Seen 'the list without its menu' xdotool key Escape

Click 180 50    # save
WaitForWindow 'ファイルの保存'
WaitForStill 'the whole dialog'
xdotool key ctrl+a
xdotool type --delay 5 "$person/made.kvs"
xdotool key Return
WaitFor 'the document' test -s "$person/made.kvs"
[[ $(grep -ao '[1-3]\.png' "$person/made.kvs" | head -n 3 | tr '\n' ' ') == '3.png 1.png 2.png ' ]] ||
    Fail 'the document has the rows in their order'

FindWindow 'スライドリスト'
xdotool windowfocus --sync "$window" 2>/dev/null || true
Click 955 695   # OK
window=$main
WaitForStill 'the main window'
xdotool windowfocus --sync "$window" 2>/dev/null || true
Click 45 545    # START
WaitForColor 420 250 '#0000FF' 'the blue picture comes first'
WaitForColor 420 250 '#FF0000' 'the red one follows'
CloseProgram
echo "the show was made and played as seen"
