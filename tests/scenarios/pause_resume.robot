# PAUSE keeps the slide on the screen; START goes on with the one after it.
choose five.kvs
menu mnuOPEN
click Form1.Command1
@1000 click Form1.Command2
expect ShowRunning 0
expect SlideIndex 1
expect StartLatch 0
expect Form1.Timer1.Enabled false
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.Command3.Enabled true
# Nothing stands before the first slide.
expect Form1.Command5.Enabled false
expect Form1.Command7.Enabled true
@4999 expect CurrentName a.png
@5000 click Form1.Command1
expect CurrentName b.png
expect SlideIndex 3
expect Form1.Command7.Enabled false
@8500 click Form1.Command2
expect SlideIndex 3
expect CurrentName c.png
expect Form1.Command5.Enabled true
expect Form1.Command7.Enabled true
@9000 click Form1.Command3
expect SlideIndex 0
expect Form1.Command5.Enabled false
expect Form1.Command7.Enabled false
@20000 expect ShowRunning 0

expect-slides 0 a.png 5000 b.png 8000 c.png
