# The full screen shows the selected slide first and comes back to the window of the list.
drop Form1 five.kvs
click Form1.Command6
select Form3.List1 3
@1000 click Form3.Command21
expect Slidescreen.Visible true
expect Form3.Visible false
expect Form1.Visible false
expect ReturnToSlideList 1
@5000 key Slidescreen 27
expect Slidescreen.Visible false
expect Form3.Visible true
expect Form1.Visible false
expect ReturnToSlideList 0
expect ShowRunning 0
expect SlideListWindowOpen 1
click Form3.Command1
expect Form1.Visible true
@6000 click Form1.Command4
expect CurrentName a.png
@7000 key Slidescreen 27
expect Form1.Visible true
expect Form3.Visible false

expect-slides 1000 d.png 4000 e.png 6000 a.png
