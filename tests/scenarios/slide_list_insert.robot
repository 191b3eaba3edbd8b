# Insert mode, drops, and what a move leaves behind.
drop Form1 five.kvs
click Form1.Command6
expect Form3.List1.ListCount 5
key Form3.List1 45
expect Form3.Check6.Value 1
select Form3.List1 1
drop Form3.List1 wide.png tree/b/5.TIF tall.png dot.png
expect Form3.List1.ListCount 8
expect Form3.List1.ListIndex 4
expect Form3.List1.Selected [4]
# Two selected rows: at the end.
select Form3.List1 0 4
drop Form3.List1 line.png
expect Form3.List1.ListCount 9
select Form3.List1 8
set Form3.Check1 0
click Form3.Command14
expect Form3.Check1.Value 0
click Form3.Command13
expect Form3.Check1.Value 1
expect Form3.List1.Selected [7]
click Form3.Command1
click Form1.Command1
+27500 quit

expect-no message
expect-slides 0 a.png 3000 wide.png 6000 tall.png 9000 dot.png 12000 b.png 15000 c.png 18000 d.png 21000 line.png 24000 e.png
