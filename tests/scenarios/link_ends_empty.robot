# Next by hand past the last slide of a chain whose last show is empty: nothing is shown there, and START
# ends the chain after 1 ms, without waiting for an interval.
menu mnuCTL 0
menu mnuSTKAKU 1
drop Form1 ends_empty.kvl
@500 click Slidescreen2.Command3
expect Slidescreen2.Command5.Enabled true
click Slidescreen2.Command5
expect LinkIndex 3
expect SlideIndex 0
expect Slidescreen2.Command2.Enabled true
@600 click Slidescreen2.Command2
expect ShowRunning 1
@602 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
quit

expect-slides 0 a.png
