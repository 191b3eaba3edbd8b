# A document on the command line goes straight to the full screen, after the question whether the
# presenter is ready.
# args: five.kvs
# Not at once: the first picture yields before it stands.
@1 expect CommandLineKind 1
expect LoadingFromStart 0
expect DocumentName five.kvs
expect Slidescreen.Visible true
expect Form1.Visible false
expect FullScreenActive 1
expect SplashDone 1
expect ShowRunning 1
expect SlideIndex 2
expect SlideListEnd 6
# One pixel is 15 twips.
expect Slidescreen.Width 28800
expect Slidescreen.Height 16200
expect Slidescreen.Left 0
expect Slidescreen.Top 0
@3000 expect CurrentName b.png
expect PreviousPictureOnScreen 1
@7000 quit

expect-slides 0 a.png 3000 b.png 6000 c.png
expect-trace message title=パラピコ text=スライド画面全体表示スタート flags=0 answer=ok
