# Shows of a list that cannot be opened are reported and passed over, an empty one is over after 1 ms.
# args: gaps.kvl
@1000 expect LinkIndex 4
expect LinkRunning 1
@3002 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form1.mnuOPTION.Enabled true

expect-slides 1 a.png
expect-trace message t=0 title=""
expect-trace message t=3001 title=""
