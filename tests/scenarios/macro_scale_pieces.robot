# 1366 x 768 in 1080 lines is a canvas of 1921 x 1080: pieces stand and move in its units, also where those
# are smaller than pixels. A press beside the star falls through, one on it leads to the next slide.
# args: --screen 1366x768 pieces_full.kvs
# app: lines1080.conf=settings.conf
@100 expect Slidescreen.Picture1(0).Left 810
expect Slidescreen.P2.Height 16200
expect Slidescreen.Height 11520
shot pieces.png
@3205 expect Slidescreen.Picture1(1).Left 842
@3250 click Slidescreen.Picture1(1) 2 2
+20 expect MacroJumpChosen 0
expect SlideIndex 2
@3300 click Slidescreen.Picture1(1) 30 20
@3450 expect Slidescreen.Picture1(1).Visible false
@4000 key Slidescreen 27
+20 expect Slidescreen.Visible false
quit

expect-slides 0 m1.png 3000 m2.png 3400 a.png
expect-trace cutout index=0 x=810 y=430 width=60 height=40
expect-trace cutout t=3000 index=1 x=820 y=440 width=60 height=40
