# Slides whose files lie elsewhere now are found in a folder and changed at once.
# unheard: Form3.Command4
click Form1.Command6
choose strayed.kvs
click Form3.Command6
expect Form3.List1.ListCount 5

# Without a folder nothing changes.
choose
click Form3.Relink
expect RelinkPreview.Visible false

# By name without case; of two c.png neither is nearer. The window says it all before anything changes.
choose moved
+1000 click Form3.Relink
+1000 expect RelinkPreview.Visible true
expect RelinkPreview.Label1.Caption "見つからないファイル 4個のうち、3個が次の場所で見つかりました。"
expect RelinkPreview.List1.ListCount 3
expect RelinkPreview.Check1.Visible true
set RelinkPreview.Check1 0
expect RelinkPreview.List1.ListCount 2
click Form3.Command4
expect Form3.List1.ListCount 5
shot relink.png RelinkPreview
click RelinkPreview.Command1
expect RelinkPreview.Visible false
set Form3.Filter moved/trip
expect Form3.SeenCount.Caption "（2枚を表示）"
set Form3.Filter /gone/
expect Form3.SeenCount.Caption "（2枚を表示）"
expect Form3.Label4.Caption 5

# One step.
set Form3.Filter
click Form3.Undo
set Form3.Filter /gone/
expect Form3.SeenCount.Caption "（4枚を表示）"
set Form3.Filter

# What the old folder has become is offered without asking for a folder.
+1000 menu Form3.mnuRELINK
+1000 expect RelinkPreview.Visible true
expect RelinkPreview.List1.ListCount 2
click RelinkPreview.Command2
set Form3.Filter /gone/
expect Form3.SeenCount.Caption "（4枚を表示）"

# A folder without them.
set Form3.Filter none.png
expect Form3.SeenCount.Caption "（1枚を表示）"
menu Form3.mnuALL
menu Form3.mnuCOPY
set Form3.Filter
menu Form3.mnuALL
click Form3.Command5
menu Form3.mnuPASTE
expect Form3.List1.ListCount 1
answer ok
choose moved
click Form3.Relink
expect RelinkPreview.Visible false

expect-trace message title=見つからないファイルを探す text~このフォルダの中には見つかりませんでした。
