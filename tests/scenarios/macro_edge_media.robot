# The screen's words at their edges, in the full screen: clearing and mirroring twice set the pen back
# to the picture's corner, (800, 420), one blank line each. 100.0 puts the next picture, of 320x240,
# into the right upper corner, 50.50 into the middle; 1 is anywhere and 0 the centre.
# args: edge_screen_full.kvs
@500 shot cleared.png
@2000 shot mirrored.png
@4100 expect PicturePositionFixed 1
expect PicturePositionXFactor 1
expect PicturePositionYFactor 0
# For the next picture only: this one stands where it stood.
expect PictureX 800
@7100 expect PicturePositionXFactor 0.5
expect PicturePositionYFactor 0.5
expect PictureX 1600
@10100 expect PicturePositionFixed 0
expect PicturePosition 1
expect Form1.mnuHICHI(1).Checked true
@13100 expect PicturePosition 0
expect Form1.mnuHICHI(0).Checked true
@16100 expect PictureX 800
expect PictureY 420
quit

expect-slides 0 e_clear.png 4000 e_corner.png 7000 e_percent.png 10000 e_random.png 13000 e_centre.png
expect-slides 16000 e_plain.png
expect-trace text t=0 x=800 y=420 text=一
expect-trace text t=0 x=800 y=449 text=二
expect-trace text t=1000 x=800 y=449 text=三
expect-trace text t=4000 x=800 y=420 text=座標
expect-trace text t=7000 x=1600 y=0 text=座標
expect-trace text t=10000 x=800 y=420 text=座標
