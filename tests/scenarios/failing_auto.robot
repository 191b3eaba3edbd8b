# Set to automatic, slides that cannot be read go without a question.
# slides: 0 a.png 3030 b.png
# no trace: "event":"message","title":"画像ファイル読込エラー"
choose failing.kvs
menu mnuOPEN
menu mnuLSAKU 1
expect ListErrorDelete 1
click Form1.Command1
@3030 expect Form3.List1.ListCount 2
expect CurrentName b.png
