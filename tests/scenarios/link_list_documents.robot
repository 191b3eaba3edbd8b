# Opening and saving lists of shows; what stood there before comes back.
menu mnuURU
click Form9.Command7
click Form9.Command8
choose all.kvl
click Form9.Command6
expect Form9.List1.ListCount 2
expect Form9.Label4.Caption 2
expect LinkDocumentName all.kvl
drop Form9.List1 five.kvs
choose chain
click Form9.Command7
expect DistributionSaveFlag 0
expect LinkDocumentName chain.kvl
answer no
click Form9.Command8
expect DistributionSaveFlag 0
answer yes
choose given.kvl
click Form9.Command8
expect DistributionSaveFlag 1
expect LinkDocumentName given.kvl
answer yes
click Form9.Command4
expect LinkDocumentName ""
expect Form9.Caption "ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）"
choose chain.kvl
click Form9.Command6
expect Form9.List1.ListCount 3
# A file that is no such list says so, and nothing changes.
choose a.png
click Form9.Command6
expect LinkDocumentName chain.kvl
expect Form9.List1.ListCount 3
click Form9.Undo
expect Form9.List1.ListCount 0
expect LinkDocumentName ""
click Form9.Undo
expect Form9.List1.ListCount 3
expect LinkDocumentName given.kvl
choose
click Form9.Command6
expect LinkDocumentName given.kvl

expect-trace message title=ファイルの保存 text=ＫＶＳリンクリストがないので保存できんません。 flags=48
expect-trace message title=ファイルの保存 text=ＫＶＳリンクリストがないので保存できんません。 flags=48
expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace dialog title="パラピコ　ファイルの保存"
expect-trace message title=配布用ＫＶＬファイルの保存 flags=36 answer=no
expect-trace message title=配布用ＫＶＬファイルの保存 flags=36 answer=yes
expect-trace dialog title="パラピコ　配布用ＫＶＬファイルの保存"
expect-trace message title=一括取消
expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace dialog title="パラピコ　ファイルを開く"
expect-trace message title=ファイルを開く flags=48
