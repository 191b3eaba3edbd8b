# A show without repeat ends one interval after its last slide.
choose five.kvs
menu mnuOPEN
@1000 click Form1.Command1
@15999 expect ShowRunning 1
expect SlideIndex 6
@16000 expect ShowRunning 0
expect SlideIndex 0
expect StopRequest 1
expect StartLatch 0
expect StepBusy 0
expect Form1.Timer1.Enabled false
expect Form1.Command1.Enabled true
expect Form1.Command2.Enabled false
expect Form1.Command3.Enabled false
expect Form1.Command4.Enabled true
expect Form1.Command6.Enabled true
expect Form1.mnuOPEN.Visible true
expect Form1.mnuOPTION.Enabled true
expect Form1.Visible true
@60000 expect CurrentName e.png

expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 d.png 13000 e.png
