# A person drives the show with the control box alone.
# unheard: Slidescreen2.Command5
choose five.kvs
menu mnuOPEN
menu mnuCTL 0
menu mnuSTKAKU 1
menu mnuKUFL 0
click Form1.Command4
expect Slidescreen2.Visible true
expect Slidescreen2.Caption a.png
expect Slidescreen2.Top 0
expect Slidescreen2.Command1.Enabled true
expect Slidescreen2.Command2.Enabled false
expect Slidescreen2.Command3.Enabled true
expect Slidescreen2.Command4.Enabled false
expect Slidescreen2.Command5.Enabled false
# While the show runs, previous and next are out of reach.
@1000 click Slidescreen2.Command5
@3500 click Slidescreen2.Command3
expect ShowRunning 0
expect SlideIndex 2
expect Slidescreen2.Command2.Enabled true
expect Slidescreen2.Command3.Enabled false
expect Slidescreen2.Command4.Enabled true
expect Slidescreen2.Command5.Enabled true
# The box cannot be closed.
close Slidescreen2
expect Slidescreen2.Visible true
@5000 click Slidescreen2.Command5
@5100 click Slidescreen2.Command5
@5200 click Slidescreen2.Command4
expect Slidescreen2.Caption c.png
@6000 click Slidescreen2.Command2
expect ShowRunning 1
expect Slidescreen2.Command4.Enabled false
@9500 click Slidescreen2.Command1
expect Slidescreen.Visible false
expect Slidescreen2.Visible false
expect Form1.Visible true
expect ShowRunning 0
expect SlideIndex 0
expect StopRequest 1
expect ExitToMainOnClose 0
expect Form1.Command1.Enabled true
expect Form1.Command3.Enabled false
expect Form1.mnuSAVE.Visible true

expect-slides 0 a.png 3000 b.png 5000 c.png 5100 d.png 5200 c.png 6000 d.png 9000 e.png
