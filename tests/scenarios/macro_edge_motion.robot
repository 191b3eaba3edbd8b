# Motion at its edges. A move by nothing ends in its first pass, before any wait. Inside the canvas of
# 800 pixels a piece of 60 comes from 600 to 740, a step each millisecond; without bounds it goes on,
# and a wait of 5000 ms is one of 1000.
choose edge_motion.kvs
menu mnuOPEN
click Form1.Command1
@70 expect Form1.Picture2(1).Top 0
@150 expect OverPicMode 1
@5335 expect SlideIndex 2
@5345 expect OverPicMode -1
quit

expect-slides 0 e_bounds.png 5340 e_dot.png
expect-trace cutout t=0 index=1 x=600 y=0 width=60 height=40
expect-trace macro t=0 line=4 keyword=MOVPB
expect-trace cutout t=140 index=1 x=740 y=0
expect-trace cutout t=340 index=1 x=940 y=0
expect-trace cutout t=2340 index=1 x=938 y=0
expect-no message
