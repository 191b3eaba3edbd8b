# While a show is paused, the two buttons move by hand; both stop at the ends of the list.
# unheard: Form1.Command5
# unheard: Form1.Command7
choose five.kvs
menu mnuOPEN
click Form1.Command1
# A running show does not let itself be moved.
click Form1.Command7
click Form1.Command5
expect SlideIndex 2
@3500 click Form1.Command2
expect SlideIndex 2
click Form1.Command7
expect SlideIndex 3
expect CurrentName c.png
expect ShowRunning 0
expect Form1.Command5.Enabled true
click Form1.Command7
click Form1.Command7
expect SlideIndex 5
expect CurrentName e.png
expect Form1.Command7.Enabled false
# Pressed once more it does nothing.
click Form1.Command7
expect SlideIndex 5
@4000 click Form1.Command5
expect SlideIndex 4
expect Form1.Command7.Enabled true
click Form1.Command5
click Form1.Command5
click Form1.Command5
expect SlideIndex 1
expect CurrentName a.png
expect Form1.Command5.Enabled false
expect Form1.Command7.Enabled true
expect StepBusy 0
@9000 click Form1.Command1
expect CurrentName b.png
expect SlideIndex 3

expect-slides 0 a.png 3000 b.png 3500 c.png 3500 d.png 3500 e.png 4000 d.png 4000 c.png 4000 b.png 4000 a.png 9000 b.png
