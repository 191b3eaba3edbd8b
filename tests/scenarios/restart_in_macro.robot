# STOP and START pressed together in the wait after a line of text, then in that for a button: each time
# the new show's first slide stands, with its own waits, and is followed by its own second one.
choose texts.kvs
menu mnuOPEN
click Form1.Command1
@800 click Form1.Command3
click Form1.Command1
expect SlideIndex 1
@2300 expect SlideIndex 1
@2380 expect SlideIndex 2
@6000 click Form1.Command3
choose edge_buttons.kvs
menu mnuOPEN
@9000 click Form1.Command1
@10000 click Form1.Command3
click Form1.Command1
expect Form1.Command8.Visible true
# No takes the show one slide back, to before the first: that one comes again.
@12000 click Form1.Command8
@12090 expect SlideIndex 1
@12150 expect StepBusy 1
@12200 click Form1.Command3
expect ShowRunning 0
quit

expect-slides 0 w1.png 800 w1.png 5360 w2.png 9000 e_first.png 10000 e_first.png 12120 e_first.png
