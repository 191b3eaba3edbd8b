# The end of the list closes the full screen and shows the main window, ready for the next start.
# args: one.kvs
@2999 expect Slidescreen.Visible true
@3000 expect Slidescreen.Visible false
expect Form1.Visible true
expect ShowRunning 0
expect SlideIndex 0
expect FullScreenActive 0
expect Form1.Command1.Enabled true
expect Form1.Command4.Enabled true
expect Form1.mnuOPEN.Visible true

expect-slides 0 a.png
