# With every slide out of its time nothing is ever shown; the show runs through the list as fast as
# its ticks. START's step passes over slide 1, the ticks over the others.
# no trace: "event":"slide"
# trace: {"t":0,"event":"skip","SlideIndex":1}
# trace: {"t":1,"event":"skip","SlideIndex":2}
# trace: {"t":2,"event":"skip","SlideIndex":3}
# trace: {"t":3,"event":"skip","SlideIndex":1}
choose outdated.kvs
menu mnuOPEN
click Form1.Command1
@50 expect ShowRunning 1
expect Form1.Picture1.Visible true
click Form1.Command3
expect ShowRunning 0
