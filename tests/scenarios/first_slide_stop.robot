# A first slide that waits for a choice nobody can make is left by STOP; PAUSE and the full screen refuse
# while the step lasts.
choose edge_held.kvs
menu mnuOPEN
click Form1.Command1
@1000 expect StepBusy 1
expect Form1.Command1.Enabled false
expect Form1.Command2.Enabled true
expect Form1.Command3.Enabled true
expect Form1.Command4.Enabled true
expect Form1.mnuSTOP.Enabled true
click Form1.Command2
expect ShowRunning 1
click Form1.Command4
expect Slidescreen.Visible false
@2000 menu mnuSTOP
@2100 expect ShowRunning 0
expect SlideIndex 0
expect Form1.Command1.Enabled true
expect Form1.Command3.Enabled false
expect Form1.mnuOPEN.Visible true
@9000 click Form1.Command1
@12100 expect SlideIndex 1
expect StepBusy 1
quit

expect-slides 0 e_menu6.png 9000 e_menu6.png
expect-no message
