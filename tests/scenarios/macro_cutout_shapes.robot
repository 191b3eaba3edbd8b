# Six pieces, one of each shape, stand over the window's canvas and vanish with the slide.
choose pieces.kvs
menu mnuOPEN
@1000 click Form1.Command1
@1100 expect Form1.Picture2(0).Visible true
expect Form1.Picture2(0).Left 10
expect Form1.Picture2(5).Top 100
expect Form1.Picture2(5).Width 900
expect Form1.Picture2(6).Visible false
expect Form1.Picture2(1).MousePointer 0
expect PicPbType 999
expect MacroButtonsShown 0
shot shapes.png
# A press means nothing: none of them can be clicked.
click Form1.Picture2(1)
expect SlideIndex 2
expect MacroJumpChosen 0
@4100 expect Form1.Picture2(0).Visible false
expect Form1.Picture2(5).Visible false
quit

expect-slides 1000 m1.png 4000 m2.png
expect-trace cutout t=1000 index=0 x=10 y=10 width=60 height=40
expect-trace cutout index=1 x=110 y=10
expect-trace cutout jump=0 action="" shape=4 state=shown
expect-trace cutout index=5 x=210 y=100
expect-trace cutout t=4000 index=5
expect-no message
