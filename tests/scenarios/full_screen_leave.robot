# Esc and a click leave the full screen; a show without "always full screen" goes on in the window.
# Other keys mean nothing. Going to the full screen starts the interval anew, leaving it does not.
# args: five.kvs
@1000 key Slidescreen 13
expect Slidescreen.Visible true
@2000 key Slidescreen 27
expect Slidescreen.Visible false
expect Form1.Visible true
expect FullScreenActive 0
expect FullScreenClosed 1
expect ShowRunning 1
expect SlideIndex 2
@4000 click Form1.Command4
expect Slidescreen.Visible true
expect Form1.Visible false
expect FullScreenActive 1
expect CurrentName b.png
@7500 click Slidescreen.P2
expect Slidescreen.Visible false
expect Form1.Visible true
expect ShowRunning 1
@15999 expect ShowRunning 1
@16000 expect ShowRunning 0

expect-slides 0 a.png 3000 b.png 7000 c.png 10000 d.png 13000 e.png
