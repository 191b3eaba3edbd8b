# Esc on the window ends the video, Enter on the player the whole show.
choose film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@4250 key Form24 27
@4300 expect Form24.Loaded false
expect ShowRunning 1
@7500 expect ShowRunning 0
@8000 click Form1.Command1
@12000 key Form24.WindowsMediaPlayer1 13
expect VideoStoppedByUser 1
@12200 expect Form24.Loaded false
expect ShowRunning 0
expect SlideIndex 0
@16000 expect ShowRunning 0

expect-slides 1000 a.png 4400 b.png 8000 a.png
