# A chain that a refused show ends comes back to that show's row, wherever it stands; shows that are not
# there are passed over.
menu mnuURU
drop Form9.List1 one.kvs refused.kvs five.kvs
select Form9.List1 1
@1000 click Form9.Command13
expect Form9.Visible true
expect LinkRunning 0
expect Form9.List1.Selected [1]
expect Form9.List1.ListIndex 1
select Form9.List1 0
@2000 click Form9.Command13
@5000 expect Form9.Visible true
expect Form9.List1.Selected [1]
# From the last row round to the first.
click Form9.Check2
drop Form9.List1 all.kvs
select Form9.List1 0
click Form9.Command5
select Form9.List1 1
@6000 dblclick Form9.List1
@21000 expect Form9.Visible true
expect Form9.List1.Selected [0]
click Form9.Check2
# Nothing but shows that are not there: where the chain began.
click Form9.Command4
drop Form9.List1 gone1.kvs gone2.kvs gone3.kvs
select Form9.List1 1
@30000 click Form9.Command13
expect Form9.Visible true
expect Form9.List1.Selected [1]

expect-trace message t=1000 title=ファイルを開く flags=48
expect-trace message t=5000 title=ファイルを開く flags=48
expect-trace message t=21000 title="" text=ファイルが見つかりません。
expect-trace message t=21000 title=ファイルを開く flags=48
expect-trace message t=21000 title=一括取消
expect-trace message t=30000 title="" text=ファイルが見つかりません。
expect-trace message t=30000 title="" text=ファイルが見つかりません。
expect-slides 2000 a.png 6000 a.png 9000 b.png 12000 c.png 15000 d.png 18000 e.png
