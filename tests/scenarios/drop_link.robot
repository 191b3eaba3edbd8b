# A list of shows dropped on the main window plays at once, as from the command line.
drop Form1 all.kvl
expect Slidescreen.Visible true
expect LinkRunning 1
expect LinkEnd 3
@12001 expect Slidescreen.Visible false
expect LinkRunning 0
expect Form1.Visible true

expect-slides 0 a.png 3000 a.png 6000 b.png 9000 c.png
expect-no message
