# Shows of a list that cannot be opened are told and passed over, an empty one is over after 1 ms.
# args: gaps.kvl
# slides: 1 a.png
# trace: "t":0,"event":"message","title":""
# trace: "t":3001,"event":"message","title":""
@1000 expect LinkIndex 4
expect LinkRunning 1
@3002 expect LinkRunning 0
expect Slidescreen.Visible false
expect Form1.Visible true
expect Form1.mnuOPTION.Enabled true
