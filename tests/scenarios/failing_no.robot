# No ends the show; the list stays as it is.
choose failing.kvs
menu mnuOPEN
answer no
click Form1.Command1
@3000 expect ShowRunning 0
expect SlideIndex 0
expect ShowAbort 0
expect StopRequest 1
expect Form3.List1.ListCount 5
expect Form1.Timer1.Enabled false
expect Form1.Timer1.Interval 3000
expect Form1.Command1.Enabled true
expect Form1.mnuOPEN.Visible true
@20000 expect ShowRunning 0

expect-slides 0 a.png
