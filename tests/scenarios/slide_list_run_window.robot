# START runs the show in the main window from the selected slide on.
drop Form1 five.kvs
click Form1.Command6
select Form3.List1 2
@1000 click Form3.Command22
expect Form3.Visible false
expect Form1.Visible true
expect ShowDateText 2026/01/01
expect JumpRequested 0
@8000 expect ShowRunning 1
@12000 expect ShowRunning 0

expect-no message
expect-slides 1000 c.png 4000 d.png 7000 e.png
