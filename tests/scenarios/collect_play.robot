# What was collected plays in another place, when the old folders are gone.
# first: collect.robot
# moved: collected=elsewhere gather=gone
choose elsewhere/スライドショー.kvs
menu mnuOPEN
@1000 click Form1.Command1
@4500 expect Form1.Picture2(1).Visible false
@7500 click Form1.Command3
quit

expect-slides 1000 a.png 4000 a_2.png 7000 b.png
expect-trace cutout t=1000 index=1 picture~STAR.PNG width=60 height=40 state=shown
expect-trace sndPlaySound t=1000 file~S.WAV
expect-trace cutout t=4000 index=2 picture~STAR_2.PNG width=30 height=20 shape=999 state=shown
