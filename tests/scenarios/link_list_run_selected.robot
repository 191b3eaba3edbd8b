# A chain from the selected row on, by the button and by a double click, goes on to the end.
menu mnuURU
drop Form9.List1 repeat.kvs five.kvs one.kvs
click Form9.Command13
select Form9.List1 0 1
click Form9.Command13
select Form9.List1 1
@1000 click Form9.Command13
expect Slidescreen.Visible true
expect LinkIndex 3
expect LinkWindowOpen 1
@20000 expect Slidescreen.Visible false
expect Form9.Visible true
expect Form9.List1.Selected [2]
select Form9.List1 2
@21000 dblclick Form9.List1
expect LinkIndex 4
@25000 expect Form9.Visible true
# Repeating goes round to the first one.
click Form9.Check2
expect LinkRepeat 1
select Form9.List1 2
@30000 dblclick Form9.List1
@33500 key Slidescreen 27
expect Form9.List1.Selected [0]

expect-trace message title=選択実行不可 text="リストから１項目だけ選んで行ってください。" flags=48
expect-trace message title=選択実行不可 text="リストから１項目だけ選んで行ってください。" flags=48
expect-slides 1000 a.png 4000 b.png 7000 c.png 10000 d.png 13000 e.png 16000 a.png 21000 a.png 30000 a.png 33000 a.png
