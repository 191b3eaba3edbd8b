# Effects take their time: a wipe of 240 rows 241 bands of 1.85 ms, one of 320 columns 321 bands of
# 1.295 ms. The interval begins when the picture stands. A click in the midst of an effect brings the
# whole picture in the frame after it and closes nothing.
# args: effects.kvs
@1 expect EffectDcValid 1
expect CurrentShowEffect 0
@445 expect StepBusy 1
@447 expect StepBusy 0
@3500 expect CurrentEraseEffect 0
expect EraseSkipOnce 0
@4000 expect CurrentShowEffect 1
@8000 click Slidescreen.P2
@8010 expect StepBusy 0
expect EffectStop 0
expect Slidescreen.Visible true
expect FullScreenActive 1
@8500 quit

expect-slides 446 a.png 4338 b.png 8008 c.png
expect-trace effect which=show number=0 ms=446
expect-trace effect which=erase number=0 ms=446
expect-trace effect which=show number=1 ms=446
expect-trace effect which=erase number=1 ms=446
expect-trace effect which=show number=2 ms=224
