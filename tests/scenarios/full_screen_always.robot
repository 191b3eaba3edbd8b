# "Always full screen": START goes there, and leaving it ends the show.
choose full.kvs
menu mnuOPEN
expect AlwaysFullFlag 0
@1000 click Form1.Command1
expect Slidescreen.Visible true
expect FullScreenActive 1
expect ShowRunning 1
@5000 key Slidescreen 27
expect Slidescreen.Visible false
expect Form1.Visible true
expect ShowRunning 0
expect SlideIndex 0
expect StopRequest 1
expect FullScreenClosedByUser 1
expect Form1.Timer1.Enabled false
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.mnuOPEN.Visible true
@9000 click Form1.Command1
expect CurrentName a.png

expect-slides 1000 a.png 4000 b.png 9000 a.png
