# A repeating show begins anew with the tick that finds the end of the list.
choose repeat.kvs
menu mnuOPEN
expect RepeatFlag 0
click Form1.Command1
@8999 expect SlideIndex 4
@9000 expect SlideIndex 2
@20000 expect ShowRunning 1

expect-slides 0 a.png 3000 b.png 6000 c.png 9000 a.png 12000 b.png 15000 c.png 18000 a.png
