# A line of 40000 pixels, a single pixel and a usual picture in full screen with effects in turn: each
# stands, and no question comes up. The line becomes one of 800 by 1: 2 bands of 1.85 ms from the top,
# 800 of 1.295 ms from the left, one of them off the screen and for nothing; the last picture has 321.
# args: --screen 800x600 extremes.kvs
@13000 expect SlideIndex 5
@20000 expect SlideIndex 0
expect ShowRunning 0

expect-slides 4 line.png 3012 dot.png 7052 line.png 11504 e.png
expect-no message text~読み込めません
expect-trace slide path~line.png x=0 y=300 width=800 height=1
expect-trace slide path~dot.png x=400 y=300 width=1 height=1
