# Motion at its edges in the full screen: from 1400 to the right edge of 1920, then beyond it. On a
# picture of one pixel, which stands at (960, 540), the random range is -1 to 0: ten moves from
# (1060, 640) take 10 ms at most. Of the picture's bounds the piece is beyond the right and the lower.
# args: edge_motion_full.kvs
@5659 expect Slidescreen.Picture1(3).Visible false
@5671 expect Slidescreen.Picture1(3).Visible true
expect OverPicMode -1
# The window's own piece does not move.
expect Form1.Picture2(2).Left 100
quit

expect-slides 0 e_bounds.png 5660 e_dot.png
expect-trace macro t=0 line=4 keyword=MOVPB
expect-trace cutout t=460 index=1 x=1860 y=420
expect-trace cutout t=660 index=1 x=2060 y=420
expect-trace cutout t=2660 index=1 x=2058 y=420
expect-trace cutout t=5660 index=2 x=1060 y=640 width=60 height=40
