# A slide that cannot be read is asked about; yes takes it out of the list, and the next comes
# 10 ms later.
choose failing.kvs
menu mnuOPEN
answer yes
answer yes
answer yes
click Form1.Command1
@3000 expect Form3.List1.ListCount 4
expect Form3.List2.ListCount 4
expect Form3.Label4.Caption 4
expect SlideListEnd 5
expect SlideIndex 2
expect Form1.Timer1.Interval 10
@3030 expect Form3.List1.ListCount 2
expect SlideListEnd 3
expect SlideIndex 3
expect SlideList(3) ""
expect Form1.Timer1.Interval 3000
@6029 expect ShowRunning 1
@6030 expect ShowRunning 0

expect-slides 0 a.png 3030 b.png
expect-trace message t=3000 title=画像ファイル読込エラー
expect-trace message text~"text.jpg\r\n画像ファイルが読み込めません。\r\nスライドリストから削除して継続しますか？" flags=36 answer=yes
expect-trace message t=3010 title=画像ファイル読込エラー
expect-trace message text~"zero.png\r\n画像ファイルが読み込めません。\r\nスライドリストから削除して継続しますか？" flags=36 answer=yes
expect-trace message t=3020 title=画像ファイル読込エラー
expect-trace message text~"missing.png\r\n画像ファイルが読み込めません。\r\nスライドリストから削除して継続しますか？" flags=36 answer=yes
