#!/bin/bash
# Cut-out pieces on a real screen: shapes are cut out, a moving star leaves no trail, a press
# on it brings the next slide. The picture of 320x240 lies at (480, 392).
set -euo pipefail
source "$(dirname "$0")/screen.sh"

LacksColor() { ! HasColor "$@"; }
ExpectOther() {
    LacksColor "$1" "$2" "$3" || Fail "$4"
}

StartProgram "$PARAPICO_DATA/pieces_slow.kvs"
# Not focused: the keyboard belongs to the box above it.
WaitFor 'the full screen' FindWindow 'パラピコ'
# Return for the box that comes before the full screen; to the show it means nothing.
PiecesStand() { xdotool key Return; HasColor 520 422 '#FFC000'; }
WaitFor 'the rectangle stands' PiecesStand
ExpectColor 620 422 '#FFC000' 'the ellipse stands'
ExpectOther 592 404 '#FFC000' 'the corner of the ellipse is cut off'

# The second slide: from (20, 20) to (120, 70) of the picture; it can be pressed.
WaitForColor 630 484 '#FFC000' 'the star has arrived'
WaitFor 'where it stood is the picture again' LacksColor 530 432 '#FFC000'
WaitFor 'no trail on its way' LacksColor 580 457 '#FFC000'
Click 630 484
WaitForColor 640 512 '#FF0000' 'a press on the star brings the next slide'
ExpectOther 630 470 '#FFC000' 'the star is gone'
CloseProgram
echo "pieces were seen, moved and pressed"
