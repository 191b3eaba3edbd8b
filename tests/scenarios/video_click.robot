# A click closes the video at the next poll, but not within its first 500 ms.
choose film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@4400 click Form24.WindowsMediaPlayer1
expect VideoCloseRequest 0
@5150 click Form24.WindowsMediaPlayer1
expect VideoCloseRequest 1
@5200 expect Form24.Loaded false
expect VideoStoppedByUser 0
expect Form3.Timer1.Enabled true
@5650 expect Form3.Timer1.Enabled true
@5700 expect Form3.Timer1.Enabled false
expect ShowRunning 1

expect-slides 1000 a.png 5300 b.png
