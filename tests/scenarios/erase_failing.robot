# A picture that cannot be read leaves the old one on the screen; the next one that can erases it as
# usual.
# args: bad_middle.kvs
answer yes
@3005 expect PreviousPictureOnScreen 1
@5000 expect SlideListEnd 3

expect-slides 0 a.png 3456 b.png
expect-trace message t=3000 title=画像ファイル読込エラー
expect-trace effect t=3456 which=erase number=0 ms=446
