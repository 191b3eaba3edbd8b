# Paused while a slide waits for the sound of the one before: START brings that slide, also where starts go
# on from where the show was left.
choose linked.kvs
menu mnuOPEN
menu mnuSOP1 1
click Form1.Command1
@3500 expect StepWaiting 1
click Form1.Command2
@3600 expect ShowRunning 0
expect SlideIndex 1
@4000 click Form1.Command1
@4100 expect CurrentName b.png
expect SlideIndex 3
quit

expect-slides 0 a.png 4000 b.png
