# Text at its edges. Colour 16 is 10, bright green, and size 7 is 24. A ramp over three letters steps
# by whole numbers rounded down: red by -85 to 0, green by -43 (of -127) to 126, blue stays; or all
# three by -85 to black. The shadow to the left and the thick outline leave the text itself in place,
# and the word between them is a blank line.
choose edge_text.kvs
menu mnuOPEN
click Form1.Command1
@6100 shot shadows.png
# 1000 pixels at a time, every 10 ms: a line that runs once is over with its first step.
@9005 expect TelopRunning 1
expect TelopStep 1000
expect Form1.Timer4.Interval 10
expect Form1.Label1.Left 800
expect Form1.Label1.Visible true
@9015 expect TelopRunning 0
expect Form1.Label1.Visible false
expect Form1.Timer4.Enabled false
# One that repeats is back at the right edge with every step, until an empty one ends it.
@12505 expect TelopRunning 0
expect Form1.Label1.Left 800
expect Form1.Label1.Caption x
expect Form1.Timer4.Enabled true
@13050 expect Form1.Label1.Visible false
expect Form1.Label1.Caption ""
expect Form1.Timer4.Enabled false
@17000 quit

expect-slides 0 e_colour.png 3000 e_grad.png 6000 e_kage.png 9000 e_telop.png 12000 e_telops.png
expect-slides 16000 e_plain.png
expect-trace text t=0 x=0 y=0 text=緑 colour=65280 font="ＭＳ ゴシック" size=24
expect-trace text t=3000 x=0 y=0 text=abc colour=16743936
expect-trace text t=3000 x=0 y=100 text=abc colour=0
expect-trace text t=6000 x=0 y=0 text=左影 colour=0
expect-trace text t=6000 x=0 y=58 text=太い colour=0
expect-no message
