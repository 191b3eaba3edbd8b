# Set to automatic, slides that cannot be read go without a question.
choose failing.kvs
menu mnuOPEN
menu mnuLSAKU 1
expect ListErrorDelete 1
click Form1.Command1
@3030 expect Form3.List1.ListCount 2
expect CurrentName b.png

expect-slides 0 a.png 3030 b.png
expect-no message title=画像ファイル読込エラー
