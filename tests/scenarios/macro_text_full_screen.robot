# In full screen the lines count from the picture's top left, here (800, 420). The third slide waits
# for the scrolling line: 1920 pixels and the 81 of its letters are 101 steps of 50 ms.
# args: texts_full.kvs
@5070 expect Slidescreen.Label1.Left 1720
expect Slidescreen.Label1.Top 470
expect Form1.Label1.Visible false
@9600 expect TelopRunning 1
@9650 expect TelopRunning 0
expect Slidescreen.Timer1.Enabled false
@12000 quit

expect-slides 0 w1.png 4560 w2.png 9620 a.png
expect-trace text t=0 x=810 y=440 text=一行目
expect-trace text t=1040 x=810 y=566 text=最後
