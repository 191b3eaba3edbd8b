# Lines of a slide's text on the main window, a wait of half a second after each that is not empty
# (it is noticed 20 ms late), a colour ramp and a turned text among them; on the second slide a
# scrolling line of three letters, 81 pixels wide, 20 pixels every 50 ms on a canvas of 800.
choose texts.kvs
menu mnuOPEN
click Form1.Command1
@400 expect MacroDelayWaiting 1
expect Form1.Timer3.Interval 500
@1600 expect Form1.Timer3.Enabled false
@4600 expect Form1.Label1.Visible true
expect Form1.Label1.Caption 流れる
expect Form1.Label1.Top 50
expect Form1.Label1.FontSize 20
expect TelopRunning 1
@5070 expect Form1.Label1.Left 600
@7000 expect TelopRunning 0
expect Form1.Label1.Visible false
@12000 quit

expect-slides 0 w1.png 4560 w2.png 7560 a.png
expect-trace text t=0 x=10 y=20 text=一行目 colour=65535 font="ＭＳ ゴシック" size=20
expect-trace text t=520 x=10 y=54 text=abcde colour=16711680
expect-trace text t=520 x=10 y=83 text=縦 colour=65535
expect-trace text t=1040 x=10 y=146 text=最後 colour=16777215
