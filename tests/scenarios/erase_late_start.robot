# A full screen that does not begin with slide 1 has nothing to erase: neither the first time nor
# when it is opened again. The picture that stands then is erased, 241 bands of 1.85 ms.
choose late_start.kvs
menu mnuOPEN
click Form1.Command1
@1000 expect PreviousPictureOnScreen 1
key Slidescreen.P2 27
expect Slidescreen.Visible false
expect PreviousPictureOnScreen 0
@2000 click Form1.Command1
@2003 expect StepBusy 0
expect PreviousPictureOnScreen 1
expect EraseSkipOnce 0
@5450 expect SlideIndex 4

expect-slides 1 b.png 2001 b.png 5447 c.png
expect-trace effect t=5447 which=erase number=0 ms=446
