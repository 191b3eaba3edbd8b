# A missing video is told; the show goes on after 1 ms.
# slides: 1000 a.png 4001 b.png
# trace: "t":4000,"event":"message","title":"動画ファイル再生停止"
# no trace: "event":"video"
choose no_film.kvs
menu mnuOPEN
@1000 click Form1.Command1
@5000 expect ShowRunning 1
