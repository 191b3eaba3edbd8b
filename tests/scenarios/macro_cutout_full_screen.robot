# In the full screen pieces stand over the picture's corner; STOP during a motion leaves the piece, and
# leaving the screen takes it away. The piece of the main window does not move along.
# args: --screen 640x400 pieces_full.kvs
@100 expect Slidescreen.Picture1(0).Left 170
expect Slidescreen.Picture1(3).Top 180
shot full.png
# 22 steps: this runs in the pass of 3210.
@3205 expect Slidescreen.Picture1(1).Left 202
expect Slidescreen.Picture1(1).Top 122
expect Form1.Picture2(1).Left 20
@3300 key Slidescreen 27
+20 expect Slidescreen.Visible false
expect Slidescreen.Picture1(1).Visible false
expect Form1.Picture2(1).Visible false
expect SlideIndex 0
quit

expect-slides 0 m1.png 3000 m2.png
expect-trace cutout index=0 x=170 y=90
expect-trace cutout t=3000 index=1 x=180 y=100 width=60 height=40
expect-trace cutout state=removed
expect-no cutout state=moved
