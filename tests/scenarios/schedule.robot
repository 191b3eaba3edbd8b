# Slides out of their time are passed over by ticks of one millisecond: b is over, c has not come.
choose schedule.kvs
menu mnuOPEN
click Form1.Command1
@3000 expect CurrentName a.png
expect ScheduleSkipped 1
expect Form1.Timer1.Interval 1
@3002 expect CurrentName d.png
expect Form1.Timer1.Interval 3000
@6001 expect ShowRunning 1
@6002 expect ShowRunning 0

expect-slides 0 a.png 3002 d.png
expect-trace skip t=3000 SlideIndex=2
expect-trace skip t=3001 SlideIndex=3
