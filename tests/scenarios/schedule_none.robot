# With every slide out of its time nothing is ever shown; the show runs through the list as fast as
# its ticks. START's step passes over slide 1, the ticks over the others.
choose outdated.kvs
menu mnuOPEN
click Form1.Command1
@50 expect ShowRunning 1
expect Form1.Picture1.Visible true
click Form1.Command3
expect ShowRunning 0

expect-no slide
expect-trace skip t=0 SlideIndex=1
expect-trace skip t=1 SlideIndex=2
expect-trace skip t=2 SlideIndex=3
expect-trace skip t=3 SlideIndex=1
