# PAUSE on the last slide: nothing comes after it. START then ends a show without repeat, and begins
# anew one with it.
choose five.kvs
menu mnuOPEN
click Form1.Command1
@13000 click Form1.Command2
expect SlideIndex 5
expect Form1.Command5.Enabled true
expect Form1.Command7.Enabled false
@14000 click Form1.Command1
expect ShowRunning 0
expect SlideIndex 0
expect StopRequest 1
expect StartLatch 0
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.mnuOPTION.Enabled true

choose repeat.kvs
menu mnuOPEN
@20000 click Form1.Command1
@27000 click Form1.Command2
expect SlideIndex 3
# The first slide comes with the next tick.
@28000 click Form1.Command1
expect ShowRunning 1
expect SlideIndex 1
@30999 expect CurrentName c.png
@31000 expect CurrentName a.png

expect-slides 0 a.png 3000 b.png 6000 c.png 9000 d.png 12000 e.png 20000 a.png 23000 b.png 26000 c.png 31000 a.png
