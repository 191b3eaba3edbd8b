# The oldest form keeps interval, repeat, default sound and the list; sound is off.
choose vue2.kvs
menu mnuOPEN
expect SoundMode 7
expect RepeatFlag 1
expect SlideIntervalSec 3
expect Form3.List1.ListCount 2
click Form1.Command1
@6000 expect ShowRunning 0

expect-slides 0 a.png 3000 b.png
