# On a monitor of 2160 lines a canvas of 1080 lines has the places and times of one of 1920 x 1080: the
# picture stands at (800, 420), the line needs 101 steps.
# args: --screen 3840x2160 texts_full.kvs
# app: lines1080.conf=settings.conf
@100 expect Slidescreen.Width 57600
expect Slidescreen.P2.Width 28800
shot lines.png
@5070 expect Slidescreen.Label1.Left 1720
expect Slidescreen.Label1.Top 470
@9650 expect TelopRunning 0
@12000 quit

expect-slides 0 w1.png 4560 w2.png 9620 a.png
expect-trace slide SlideIndex=1
expect-trace slide x=800 y=420 width=320 height=240
expect-trace text t=0 x=810 y=440 text=一行目
expect-trace text t=1040 x=810 y=566 text=最後
