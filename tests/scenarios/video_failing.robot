# A file that is no video is reported, and the show ends in the main window.
choose bad_film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@5000 expect ShowRunning 0
expect SlideIndex 0
expect VideoStoppedByUser 1
expect Form24.Loaded false
expect Form1.Command1.Enabled true

expect-slides 1000 a.png
expect-trace message t=4100 title=動画再生エラー
