# The picture before missing films is erased once; neither the second film nor the picture after
# them erases the empty screen again.
# args: gone_films.kvs
@3400 expect PreviousPictureOnScreen 1
@3447 expect PreviousPictureOnScreen 0
@4000 expect ShowRunning 1

expect-slides 0 a.png 3448 b.png
expect-trace effect t=3446 which=erase number=0 ms=446
expect-trace message t=3446 title=動画ファイル再生停止
expect-trace message t=3447 title=動画ファイル再生停止
