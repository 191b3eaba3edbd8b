# Rows that do not hold the text of the box are not seen, and nothing else changes.
click Form1.Command6
drop Form3.List1 a.png b.png 絵１.png tall.png
expect Form3.SeenCount.Visible false
set Form3.Filter TALL.PNG
expect Form3.SeenCount.Visible true
expect Form3.SeenCount.Caption "（1枚を表示）"
expect Form3.List1.ListCount 4
expect Form3.Label4.Caption 4
set Form3.Filter 絵1
expect Form3.SeenCount.Caption "（1枚を表示）"

# A person chooses and removes what is seen.
select Form3.List1 0 1 2 3
expect Form3.List1.Selected [2]
click Form3.Command5
expect Form3.List1.ListCount 3
expect Form3.SeenCount.Caption "（0枚を表示）"
click Form3.Undo
expect Form3.SeenCount.Caption "（1枚を表示）"

# What is selected and not seen stays where the rest goes.
set Form3.Filter
select Form3.List1 0 2
set Form3.Filter 絵
click Form3.Command5
expect Form3.List1.ListCount 3
expect Form3.List1.Selected [0]
click Form3.Undo

# Moving swaps with the neighbour that is seen.
set Form3.Filter tall.png
expect Form3.SeenCount.Caption "（1枚を表示）"
select Form3.List1 3
click Form3.Command13
expect Form3.List1.Selected [3]

# Esc empties the box; so does a list that becomes empty.
key Form3.Filter 27
expect Form3.SeenCount.Visible false
expect Form3.Filter.Text ""
set Form3.Filter tall.png
answer yes
click Form3.Command4
expect Form3.List1.ListCount 0
expect Form3.Filter.Text ""
click Form3.Undo
expect Form3.List1.ListCount 4
expect-trace message title=一括取消 text~"スライドリストをすべて消去しますか ?\r\n"
