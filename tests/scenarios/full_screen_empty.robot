# Leaving the full screen of an empty show leaves a main window that can be used.
# args: empty.kvs
@1000 expect Slidescreen.Visible true
key Slidescreen 27
expect Form1.Visible true
expect Form1.Command1.Enabled false
expect Form1.mnuOPTION.Enabled true
expect Form1.mnuGKO.Enabled true
expect Form1.mnuNEW.Visible true
choose one.kvs
menu mnuOPEN
@2000 click Form1.Command1
@2001 expect ShowRunning 1
quit

expect-slides 2000 a.png
