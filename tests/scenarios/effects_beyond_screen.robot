# A picture of 120 by 640 fitted to the width of 640 by 360 becomes 640 by 3413, of which only 360
# rows are on the screen: rows above and below it cost no pause. 360 bands of 1.85 ms.
# args: --screen 640x360 high.kvs
expect SizeAdjust 1
@1000 expect StepBusy 0

expect-slides 666 tall.png
expect-trace effect which=show number=0 ms=666
expect-trace slide path~tall.png x=0 y=-1526 width=640 height=3413
