# A star moves by 100 and 50 pixels in steps of 10 ms; it can be clicked, so the slide waits for it.
# A line of this script runs at the next pump, after the step of that moment.
# unheard: Form1.Picture2(1)
choose pieces.kvs
menu mnuOPEN
@1000 click Form1.Command1
@4025 expect Form1.Picture2(1).Left 24
expect Form1.Picture2(1).Top 24
expect Slidescreen.Picture1(1).Left 20
@4600 expect Form1.Picture2(1).Top 70
@4995 expect Form1.Picture2(1).Left 120
expect Form1.Picture2(1).MousePointer 99
expect MacroButtonsShown 1
@6990 expect SlideIndex 2
# Beside the star is no press on it.
click Form1.Picture2(1) 2 2
expect MacroJumpChosen 0
@7000 click Form1.Picture2(1) 30 20
+60 expect Form1.Picture2(1).Visible false
expect MacroEndShow 1
@7200 quit

expect-slides 1000 m1.png 4000 m2.png 7120 a.png
expect-trace cutout t=4000 index=1 x=20 y=20
expect-trace cutout t=5000 index=1 x=120 y=70 width=60 height=40
expect-trace cutout shape=3 state=moved
