# New empties slide list, sound list and link list after its one question. The link list ran by itself at
# the start; new_lists_after.robot is the next one.
# app: uautst.dat one.kvs repeat.kvs a.png b.png c.png
# unheard: Form1.Command3
@1000 key Slidescreen 27
+100 expect Form1.Visible true
click Form1.Command3
choose list.kvs
menu mnuOPEN
expect Form10.List1.ListCount 3
expect SoundListCount 3
expect Form9.List1.ListCount 2
answer no
menu mnuNEW
expect Form9.List1.ListCount 2
expect Form10.List1.ListCount 3
answer yes
@5000 menu mnuNEW
expect Form3.List1.ListCount 0
expect Form10.List1.ListCount 0
expect Form10.Label4.Caption 0
expect SoundListCount 0
expect SoundList []
expect Form9.List1.ListCount 0
expect Form9.Label4.Caption 0
expect Form9.Caption "ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）"
expect Form9.Check1.Value 0
expect Form9.Check2.Value 1
expect LinkDocumentName ""
expect LinkList []
expect LinkEnd 0
expect LinkAutoFlag 0

expect-trace message t=5000 title=新規作成 text="スライドリストとすべての設定を初期状態にしますか ?" flags=36 answer=yes
expect-no message title=一括取消
expect-no message unanswered=true
