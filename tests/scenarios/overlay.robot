# With an overlay pictures pile up: the menu lays the ground, at the next choice of a mode in the
# colour chosen meanwhile, and a show runs through.
choose five.kvs
menu mnuOPEN
expect Form1.mnuKAHAI.Visible false
expect Slidescreen.P2.BackColor 0
menu mnuKASANE 4
expect OverlayMode 4
expect Form1.mnuKAHAI.Visible true
expect Slidescreen.P2.BackColor 8421504
menu mnuKAIRO 3
expect Slidescreen.P2.BackColor 8421504
menu mnuKASANE 0
expect Form1.mnuKAHAI.Visible false
expect Slidescreen.P2.BackColor 0
menu mnuKASANE 2
menu mnuKASAS 3
expect Slidescreen.P2.BackColor 12632319
expect Slidescreen.P4.BackColor 12632319
click Form1.Command4
expect FullScreenActive 1
@10000 expect SlideIndex 5
expect Slidescreen.P2.BackColor 12632319
expect Slidescreen.P3.BackColor 12632319
expect EffectDcValid 1
@16000 expect ShowRunning 0
expect Form1.mnuKAHAI.Visible true

expect-slides 0 a.png 3000 b.png 6000 c.png 9000 d.png 12000 e.png
