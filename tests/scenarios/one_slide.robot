# A single slide without repeat: the show ends after one interval.
choose one.kvs
menu mnuOPEN
click Form1.Command1
expect SlideIndex 2
@2999 expect ShowRunning 1
@3000 expect ShowRunning 0
expect SlideIndex 0

expect-slides 0 a.png
