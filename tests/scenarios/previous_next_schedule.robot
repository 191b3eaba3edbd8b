# Moving by hand passes over slides that are out of their time: b is over, c has not come yet.
choose schedule.kvs
menu mnuOPEN
click Form1.Command1
@1000 click Form1.Command2
click Form1.Command7
expect SlideIndex 4
expect Form1.Command7.Enabled false
@2000 click Form1.Command5
expect SlideIndex 1
expect Form1.Command5.Enabled false

expect-slides 0 a.png 1000 d.png 2000 a.png
expect-trace skip t=1000 SlideIndex=2
expect-trace skip t=1000 SlideIndex=3
expect-trace skip t=2000 SlideIndex=3
expect-trace skip t=2000 SlideIndex=2
