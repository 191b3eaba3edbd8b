# Random order over a single slide always draws it.
choose one.kvs
menu mnuOPEN
menu mnuRANDFL 0
click Form1.Command1
@8000 expect SlideIndex 2

expect-slides 0 a.png 3000 a.png 6000 a.png
