# The screen's words at their edges, in the full screen: clearing and mirroring twice set the pen back
# to the picture's corner, (800, 420), one blank line each. 100.0 puts the next picture, of 320x240,
# into the right upper corner, 50.50 into the middle; 1 is anywhere and 0 the centre.
# args: edge_screen_full.kvs
# slides: 0 e_clear.png 3000 e_corner.png 6000 e_percent.png 9000 e_random.png 12000 e_centre.png
# slides: 15000 e_plain.png
# trace: {"t":0,"event":"text","x":800,"y":420,"text":"一"
# trace: {"t":0,"event":"text","x":800,"y":449,"text":"二"
# trace: {"t":0,"event":"text","x":800,"y":449,"text":"三"
# trace: {"t":3000,"event":"text","x":800,"y":420,"text":"座標"
# trace: {"t":6000,"event":"text","x":1600,"y":0,"text":"座標"
# trace: {"t":9000,"event":"text","x":800,"y":420,"text":"座標"
@3100 expect PicturePositionFixed 1
expect PicturePositionXFactor 1
expect PicturePositionYFactor 0
# For the next picture only: this one stands where it stood.
expect PictureX 800
@6100 expect PicturePositionXFactor 0.5
expect PicturePositionYFactor 0.5
expect PictureX 1600
@9100 expect PicturePositionFixed 0
expect PicturePosition 1
expect Form1.mnuHICHI(1).Checked true
@12100 expect PicturePosition 0
expect Form1.mnuHICHI(0).Checked true
@15100 expect PictureX 800
expect PictureY 420
quit
