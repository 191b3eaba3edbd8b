# A round of empty shows ends the run, 1 ms a show.
# args: empties.kvl
@1 expect LinkRunning 1
@3 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form1.Command1.Enabled false
expect Form1.mnuOPTION.Enabled true
expect Form1.mnuOPEN.Visible true

expect-no slide
