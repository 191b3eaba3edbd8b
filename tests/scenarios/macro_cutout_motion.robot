# A star moves by 100 and 50 pixels in steps of 10 ms; it can be clicked, so the slide waits for it.
# args: pieces.kvs
# slides: 0 m1.png 3000 m2.png 6100 a.png
# trace: {"t":3000,"event":"cutout","index":1,"x":20,"y":20,
# trace: {"t":4000,"event":"cutout","index":1,"x":120,"y":70,"width":60,"height":40,
# trace: "shape":3,"state":"moved"}
@3025 expect Form1.Picture2(1).Left 23
expect Form1.Picture2(1).Top 23
expect Slidescreen.Picture1(1).Left 20
@3600 expect Form1.Picture2(1).Top 70
@3995 expect Form1.Picture2(1).Left 120
expect Form1.Picture2(1).MousePointer 99
expect MacroButtonsShown 1
@5990 expect SlideIndex 2
# Beside the star is no press on it.
click Form1.Picture2(1) 2 2
expect MacroJumpChosen 0
@6000 click Form1.Picture2(1) 30 20
+60 expect Form1.Picture2(1).Visible false
expect MacroEndShow 1
@6200 quit
