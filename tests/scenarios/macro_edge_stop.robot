# STOP in the main window during a move ends it where the piece stands, and hides the piece: the press
# of 3250 is met by the pump of the pass of 3300, the fourth.
choose edge_stop.kvs
menu mnuOPEN
click Form1.Command1
@3250 click Form1.Command3
@3500 expect Form1.Picture2(1).Left 4
expect Form1.Picture2(1).Visible false
expect ShowRunning 0
@9000 expect Form1.Picture2(1).Left 4
quit

expect-trace cutout t=3300 index=1 x=4 y=0
expect-no cutout state=moved
expect-slides 0 e_plain.png 3000 e_stop.png
expect-no message
