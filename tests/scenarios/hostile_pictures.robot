# A drawing that would take hours, garbage and a picture of 14 GB stand in the middle of a show: each is
# asked about as any unreadable file, and the show goes on with a drawing and a picture that are well.
choose hostile.kvs
menu mnuOPEN
answer yes
answer yes
answer yes
click Form1.Command1
@3100 expect Form3.List1.ListCount 3
expect CurrentName bar.svg
shot bar.png
@9040 expect ShowRunning 0

expect-slides 0 a.png 3030 bar.svg 6030 b.png
expect-trace message t=3000 title=画像ファイル読込エラー
expect-trace message text~"endless.svg\r\n画像ファイルが読み込めません。\r\nスライドリストから削除して継続しますか？" flags=36 answer=yes
expect-trace message t=3010 title=画像ファイル読込エラー
expect-trace message text~"garbage.psd\r\n画像ファイルが読み込めません。"
expect-trace message t=3020 title=画像ファイル読込エラー
expect-trace message text~"bomb.png\r\n画像ファイルが読み込めません。"
