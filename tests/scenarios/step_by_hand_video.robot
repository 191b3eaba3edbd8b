# A step by hand onto a video leaves the show paused, and every button goes on: back, on, and START.
choose film.kvs
menu mnuOPEN
click Form1.Command1
@500 click Form1.Command2
@1000 click Form1.Command7
@3900 expect StepBusy 0
expect SlideIndex 2
expect Form1.Command1.Enabled true
expect Form1.Command5.Enabled true
expect Form1.Command7.Enabled true
@4000 click Form1.Command5
@4500 click Form1.Command7
@7000 click Form1.Command1
+1 expect ShowRunning 1
quit

expect-slides 0 a.png 4000 a.png 7000 b.png
expect-trace video t=1000 action=play
