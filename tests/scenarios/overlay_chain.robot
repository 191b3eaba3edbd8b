# A document with overlap in the middle of a chain keeps the layers at the size of the canvas, also where
# that is reckoned in 1080 lines: its pictures stand in the middle of the monitor.
# args: --screen 3840x2160 piled.kvl
# app: lines1080.conf=settings.conf
@3500 expect OverlayMode 1
expect Slidescreen.P2.Left 0
expect Slidescreen.P2.Width 28800
expect Slidescreen.P2.Height 16200
expect Slidescreen.P3.Width 28800
expect Slidescreen.P4.Width 28800
@6500 expect SlideIndex 3

expect-slides 0 a.png 3000 a.png 6000 b.png
