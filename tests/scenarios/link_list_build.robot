# Shows come into the list by a click, all at once and by a drop, change places and leave.
menu mnuURU
expect Form9.Visible true
expect Form9.Left 5400
expect Form9.Top 2400
expect Form1.Visible false
expect LinkListDirty 1
set Form9.Dir1 .
expect Form9.File1.Pattern "*.kvs"
# Natural order: avi.kvs stands first.
select Form9.File1 0
expect Form9.List1.ListCount 1
expect Form9.Label4.Caption 1
expect Form9.List1.TopIndex 0
drop Form9.List1 one.kvs a.png all.kvl repeat.kvs
expect Form9.List1.ListCount 3
select Form9.List1 0 1
click Form9.Command11
select Form9.List1
click Form9.Command12
select Form9.List1 0
click Form9.Command11
expect Form9.List1.Selected [0]
click Form9.Command12
expect Form9.List1.Selected [1]
expect Form9.List1.ListIndex 1
click Form9.Command12
click Form9.Command12
expect Form9.List1.Selected [2]
# In front of the selected row, which stays the current one.
click Form9.Check4
select Form9.List1 0
drop Form9.List1 five.kvs full.kvs
expect Form9.List1.Selected [2]
expect Form9.Label4.Caption 5
click Form9.Command5
expect Form9.Label4.Caption 4
click Form9.Undo
expect Form9.Label4.Caption 5
expect Form9.List1.Selected [2]
click Form9.Redo
expect Form9.Label4.Caption 4
key Form9.List1 46
expect Form9.Label4.Caption 4
key Form9.List1 45
expect Form9.Check4.Value 0
answer no
click Form9.Command4
expect Form9.List1.ListCount 4
answer yes
click Form9.Command4
expect Form9.List1.ListCount 0
expect Form9.Label4.Caption 0
click Form9.Command4
click Form9.Undo
expect Form9.List1.ListCount 4

expect-trace message title=↑移動不可 text="リストから１項目だけ選んで行ってください。" flags=48
expect-trace message title=↓移動不可 text="リストから１項目だけ選んで行ってください。" flags=48
expect-trace message title=一括取消 text="ＫＶＳリンクリストをすべて消去しますか ?" flags=36 answer=no
expect-trace message title=一括取消 answer=yes
