# Pieces at their edges. A coordinate file named for piece 3 does not shape piece 4, which stays a
# rectangle of the kind 999 and is pressed at its corner; a clickable piece holds the slide. 00 and 0
# are the same piece, an action of no known kind makes a plain one, and there is no piece 63. Of the
# coordinates the first 5000 count, here the left half.
# unheard: Form1.Picture2(5)
choose edge_pieces.kvs
menu mnuOPEN
click Form1.Command1
@100 expect PicPbType 999
expect Form1.Picture2(3).Visible false
expect Form1.Picture2(4).Visible true
expect Form1.Picture2(4).MousePointer 99
expect MacroButtonsShown 1
@9990 expect SlideIndex 1
@10000 click Form1.Picture2(4) 2 2
@10200 expect Form1.Picture2(4).Visible false
expect Form1.Picture2(0).Left 100
expect Form1.Picture2(1).MousePointer 0
expect Form1.Picture2(1).Visible true
expect MacroButtonsShown 0
@19990 click Form1.Picture2(5) 45 20
expect MacroJumpChosen 0
@20000 click Form1.Picture2(5) 15 20
@20500 quit

expect-slides 0 e_other.png 10120 e_same.png 13120 e_many.png 20120 e_plain.png
expect-trace cutout t=0 index=4 x=0 y=0 width=60 height=40
expect-trace cutout t=10120 index=0 x=0 y=0
expect-trace cutout t=10120 index=0 x=100 y=0
expect-no cutout index=3
expect-no cutout index=63
expect-no message
