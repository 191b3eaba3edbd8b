# A missing video is reported; the show goes on after 1 ms.
choose no_film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@5000 expect ShowRunning 1

expect-slides 1000 a.png 4001 b.png
expect-trace message t=4000 title=動画ファイル再生停止
expect-no video
