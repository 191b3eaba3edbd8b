# Slides out of their time are passed over by ticks of one millisecond: b is over, c has not come.
# slides: 0 a.png 3002 d.png
# trace: {"t":3000,"event":"skip","SlideIndex":2}
# trace: {"t":3001,"event":"skip","SlideIndex":3}
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
