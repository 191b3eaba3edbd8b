# The picture ahead of missing films is erased once; neither the second film nor the picture behind
# them erases the empty screen again.
# args: gone_films.kvs
# slides: 0 a.png 3448 b.png
# trace: {"t":3446,"event":"effect","which":"erase","number":0,"ms":446}
# trace: {"t":3446,"event":"message","title":"動画ファイル再生停止"
# trace: {"t":3447,"event":"message","title":"動画ファイル再生停止"
@3400 expect PreviousPictureOnScreen 1
@3447 expect PreviousPictureOnScreen 0
@4000 expect ShowRunning 1
