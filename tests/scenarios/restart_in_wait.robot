# STOP and START pressed together while a step waits for a sound: the show starts anew, and nothing of
# the step that waited touches it.
choose linked.kvs
menu mnuOPEN
click Form1.Command1
@4000 expect StepWaiting 1
click Form1.Command3
click Form1.Command1
expect ShowRunning 1
@4100 expect SlideIndex 2
@9020 expect SlideIndex 3
@12030 expect SlideIndex 4
@15100 expect ShowRunning 0
quit

expect-slides 0 a.png 4000 a.png 9010 b.png 12020 c.png
